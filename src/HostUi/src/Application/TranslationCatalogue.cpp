#include "HostUi/TranslationCatalogue.h"

#include "HostUi/QtText.h"

namespace vesk
{

TranslationCatalogue::TranslationCatalogue(const QString& folder, const QString& name,
                                           const QLocale& locale)
{
    m_catalogue.load(locale, name, QStringLiteral("_"), folder);
    TranslatorManager::Get()->SetTranslator(this);
}

TranslationCatalogue::~TranslationCatalogue()
{
    TranslatorManager::Get()->SetTranslator(nullptr);
}

std::wstring TranslationCatalogue::Translate(const std::wstring& context,
                                             const std::wstring& text) const
{
    return ToWide(m_catalogue.translate(ToQString(context).toUtf8().constData(),
                                        ToQString(text).toUtf8().constData()));
}

}
