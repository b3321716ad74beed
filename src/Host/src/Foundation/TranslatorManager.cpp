#include "Foundation/TranslatorManager.h"

namespace vesk
{

TranslatorManager* TranslatorManager::Get()
{
    static TranslatorManager s_manager;
    return &s_manager;
}

std::wstring TranslatorManager::Translate(const std::wstring& context,
                                          const std::wstring& text) const
{
    const std::wstring translated =
        m_pTranslator != nullptr ? m_pTranslator->Translate(context, text) : std::wstring();
    return translated.empty() ? text : translated;
}

}
