#pragma once

#include <QLocale>
#include <QObject>
#include <QTimer>

#include <functional>

namespace vesk
{
class TranslationCatalogue;
}

/// Changes the language of everything on screen, as soon as that disturbs nobody: no tool runs, no
/// dialog or menu is open, and no text is being typed.
class LanguageSwitch final : public QObject
{
    Q_OBJECT

public:
    /// `rebuild` builds what is on screen anew; it is called after the language has changed. The
    /// catalogue is not owned and outlives this.
    LanguageSwitch(vesk::TranslationCatalogue& catalogue, std::function<void()> rebuild);

    /// Changes to a language; of several at once the last one holds.
    void Set(const QLocale& locale);

private:
    void Try();

    vesk::TranslationCatalogue& m_catalogue;
    const std::function<void()> m_rebuild;
    QLocale m_locale;
    QTimer m_retry;
};
