#pragma once

#include <QKeyEvent>
#include <QString>

namespace vesk
{

/// A key that is delivered later. Events themselves cannot be copied.
class KeptKey
{
public:
    explicit KeptKey(const QKeyEvent& event)
        : m_type(event.type()), m_key(event.key()), m_modifiers(event.modifiers()),
          m_scanCode(event.nativeScanCode()), m_virtualKey(event.nativeVirtualKey()),
          m_nativeModifiers(event.nativeModifiers()), m_text(event.text()),
          m_isAutoRepeat(event.isAutoRepeat()), m_count(static_cast<quint16>(event.count()))
    {}

    QKeyEvent ToEvent() const
    {
        return QKeyEvent(m_type, m_key, m_modifiers, m_scanCode, m_virtualKey, m_nativeModifiers,
                         m_text, m_isAutoRepeat, m_count);
    }

    /// `take` receives the event.
    template <typename Take>
    void Deliver(Take take) const
    {
        QKeyEvent event = ToEvent();
        take(event);
    }

private:
    QEvent::Type m_type;
    int m_key;
    Qt::KeyboardModifiers m_modifiers;
    quint32 m_scanCode;
    quint32 m_virtualKey;
    quint32 m_nativeModifiers;
    QString m_text;
    bool m_isAutoRepeat;
    quint16 m_count;
};

}
