#include "HostUi/TranslationCatalogue.h"

#include "HostUi/QtText.h"

#include <QCoreApplication>

namespace vesk
{

TranslationCatalogue::TranslationCatalogue(const QLocale& locale)
    : TranslationCatalogue(QStringLiteral(":/vesk/translations"), QStringLiteral("vesk"), locale)
{}

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
    // Both tell the widgets, which hear of it when the new texts are there.
    const bool isTold = QCoreApplication::instance() != nullptr;
    if (isTold)
        QCoreApplication::removeTranslator(&m_catalogue);
    // A failed attempt leaves the catalogue empty, as it must be for a locale without one.
    static_cast<void>(m_catalogue.load(locale, m_name, QStringLiteral("_"), m_folder));
    if (isTold && !m_catalogue.isEmpty())
        QCoreApplication::installTranslator(&m_catalogue);
}

std::wstring TranslationCatalogue::Translate(const std::wstring& context,
                                             const std::wstring& text) const
{
    // Most texts on screen are asked for again and again.
    if (m_catalogue.isEmpty())
        return {};
    return ToWide(m_catalogue.translate(ToQString(context).toUtf8().constData(),
                                        ToQString(text).toUtf8().constData()));
}

}
