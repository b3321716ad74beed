#include "HostUi/TranslationCatalogue.h"

#include "HostUi/QtText.h"

#include <QCoreApplication>

namespace vesk
{

TranslationCatalogue::TranslationCatalogue(const QString& folder, const QString& name,
                                           const QLocale& locale)
    : m_folder(folder), m_name(name)
{
    SetLocale(locale);
    TranslatorManager::Get()->SetTranslator(this);
}

TranslationCatalogue::~TranslationCatalogue()
{
    TranslatorManager::Get()->SetTranslator(nullptr);
    if (QCoreApplication::instance() != nullptr)
        QCoreApplication::removeTranslator(&m_catalogue);
}

void TranslationCatalogue::SetLocale(const QLocale& locale)
{
    // A failed attempt leaves the catalogue empty, as it must be for a locale without one.
    static_cast<void>(m_catalogue.load(locale, m_name, QStringLiteral("_"), m_folder));
    // Installed again so that the widgets are told after the texts have changed.
    if (QCoreApplication::instance() != nullptr)
        QCoreApplication::installTranslator(&m_catalogue);
}

std::wstring TranslationCatalogue::Translate(const std::wstring& context,
                                             const std::wstring& text) const
{
    return ToWide(m_catalogue.translate(ToQString(context).toUtf8().constData(),
                                        ToQString(text).toUtf8().constData()));
}

}
