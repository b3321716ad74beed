#pragma once

#include "Foundation/HostExport.h"

#include <string>

namespace vesk
{

/// Provides texts in the user's language.
class VESK_HOST_API ITranslator
{
public:
    virtual ~ITranslator() = default;

    /// The translation of a source text; empty if there is none.
    virtual std::wstring Translate(const std::wstring& context, const std::wstring& text) const = 0;
};

/// Translates the texts shown to the user.
class VESK_HOST_API TranslatorManager
{
public:
    /// The process-wide instance; never null.
    static TranslatorManager* Get();

    /// The text in the user's language; the source text itself if it has no translation. `context`
    /// is the module that the text belongs to.
    std::wstring Translate(const std::wstring& context, const std::wstring& text) const;

    /// Sets the translator; null for none. Not owned.
    void SetTranslator(const ITranslator* pTranslator) { m_pTranslator = pTranslator; }

private:
    TranslatorManager() = default;

    const ITranslator* m_pTranslator = nullptr;
};

}
