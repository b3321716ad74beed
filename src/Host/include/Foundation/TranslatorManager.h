#pragma once

#include "Foundation/HostExport.h"

#include <string>

namespace vesk
{

/// Knows what texts are in the user's language.
class VESK_HOST_API ITranslator
{
public:
    virtual ~ITranslator() = default;

    /// The translation of a source text; empty when there is none.
    virtual std::wstring Translate(const std::wstring& context, const std::wstring& text) const = 0;
};

/// Translates the texts that a user sees.
class VESK_HOST_API TranslatorManager
{
public:
    /// The one of the process; never null.
    static TranslatorManager* Get();

    /// The text in the user's language; the source text itself where no translation is known.
    /// `context` is the module whose text it is.
    std::wstring Translate(const std::wstring& context, const std::wstring& text) const;

    /// Chooses who knows the translations; null for nobody. Not owned.
    void SetTranslator(const ITranslator* pTranslator) { m_pTranslator = pTranslator; }

private:
    TranslatorManager() = default;

    const ITranslator* m_pTranslator = nullptr;
};

}
