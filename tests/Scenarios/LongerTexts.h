#pragma once

#include "Foundation/TranslatorManager.h"
#include "HostUi/QtText.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QString>
#include <QTranslator>

/// English, half as long again: every second letter is written twice, but for what stands for
/// something else. It stays the language of the program for as long as no other has a catalogue.
class LongerTexts final : public QTranslator, public vesk::ITranslator
{
public:
    /// Reads the English catalogue from a folder.
    explicit LongerTexts(const QString& folder)
    {
        m_isRead = m_english.load(QStringLiteral("sketcher_en"), folder);
        QCoreApplication::installTranslator(this);
        vesk::TranslatorManager::Get()->SetTranslator(this);
    }

    ~LongerTexts() override
    {
        vesk::TranslatorManager::Get()->SetTranslator(nullptr);
        QCoreApplication::removeTranslator(this);
    }

    LongerTexts(const LongerTexts&) = delete;
    LongerTexts& operator=(const LongerTexts&) = delete;

    bool isEmpty() const override { return !m_isRead; }

    QString translate(const char* context, const char* source, const char* meaning,
                      int number) const override
    {
        return Lengthen(m_english.translate(context, source, meaning, number));
    }

    std::wstring Translate(const std::wstring& context, const std::wstring& text) const override
    {
        return vesk::ToWide(translate(vesk::ToQString(context).toUtf8().constData(),
                                      vesk::ToQString(text).toUtf8().constData(), nullptr, -1));
    }

    static QString Lengthen(const QString& text)
    {
        // Places for values, shortcut letters, mark-up, patterns of files, links.
        static const QRegularExpression s_kept(
            QStringLiteral("%L?[0-9n]|&.|<[^>]*>|\\*\\.\\w+|\\[\\*\\]|\\w+://\\S+"));
        QString longer;
        int end = 0;
        auto matches = s_kept.globalMatch(text);
        while (matches.hasNext())
        {
            const QRegularExpressionMatch match = matches.next();
            longer += Stretch(text.mid(end, match.capturedStart() - end)) + match.captured();
            end = match.capturedEnd();
        }
        return longer + Stretch(text.mid(end));
    }

private:
    static QString Stretch(const QString& text)
    {
        QString longer;
        bool isSecond = true;
        for (const QChar character : text)
        {
            isSecond = !isSecond;
            longer += character;
            if (isSecond || text.size() == 1)
                longer += character.isSpace() ? QChar('e') : character;
        }
        return longer;
    }

    QTranslator m_english;
    bool m_isRead = false;
};
