#include "LanguageSwitch.h"

#include "HostUi/ControlHost.h"
#include "HostUi/TranslationCatalogue.h"

#include <QApplication>
#include <QLineEdit>
#include <QLocale>

#include <chrono>
#include <utility>

namespace
{

constexpr std::chrono::milliseconds RetryInterval{20};

/// A text that was changed and is not committed would be lost.
bool IsTextBeingTyped()
{
    const auto* pField = qobject_cast<const QLineEdit*>(QApplication::focusWidget());
    return pField != nullptr && pField->isModified();
}

bool IsDisturbing()
{
    return !vesk::ControlHost::CanRemoveAll() || QApplication::activeModalWidget() != nullptr ||
           QApplication::activePopupWidget() != nullptr || IsTextBeingTyped();
}

}

LanguageSwitch::LanguageSwitch(vesk::TranslationCatalogue& catalogue, std::function<void()> rebuild)
    : m_catalogue(catalogue), m_rebuild(std::move(rebuild))
{
    m_retry.setInterval(RetryInterval);
    connect(&m_retry, &QTimer::timeout, this, &LanguageSwitch::Try);
}

void LanguageSwitch::Set(const QLocale& locale)
{
    m_locale = locale;
    m_retry.start();
}

void LanguageSwitch::Try()
{
    if (IsDisturbing())
        return;
    m_retry.stop();
    QLocale::setDefault(m_locale);
    m_catalogue.SetLocale(m_locale);
    m_rebuild();
}
