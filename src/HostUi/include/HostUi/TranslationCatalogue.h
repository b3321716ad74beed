#pragma once

#include "Foundation/TranslatorManager.h"
#include "HostUi/HostUiExport.h"

#include <QLocale>
#include <QString>
#include <QTranslator>

namespace vesk
{

/// The translations of one locale, from a Qt catalogue `<name>_<locale>.qm`. While it lives, it is
/// the host's translator, and the application's if there is one.
///
/// Without a catalogue for the locale nothing is translated and the source texts are shown.
class VESK_HOST_UI_API TranslationCatalogue final : public ITranslator
{
public:
    /// Loads the catalogue that is in this library: the texts that the host and the control library
    /// show, in English and German. Their source texts are Chinese.
    explicit TranslationCatalogue(const QLocale& locale = QLocale());

    /// Loads the catalogue of a program from a folder.
    TranslationCatalogue(const QString& folder, const QString& name,
                         const QLocale& locale = QLocale());
    ~TranslationCatalogue() override;
    TranslationCatalogue(const TranslationCatalogue&) = delete;
    TranslationCatalogue& operator=(const TranslationCatalogue&) = delete;

    /// Loads the catalogue for another locale; the application tells all widgets
    /// (QEvent::LanguageChange).
    void SetLocale(const QLocale& locale);

    std::wstring Translate(const std::wstring& context, const std::wstring& text) const override;

private:
    const QString m_folder;
    const QString m_name;
    QTranslator m_catalogue;
};

}
