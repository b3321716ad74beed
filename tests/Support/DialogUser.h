#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QFileDialog>
#include <QMessageBox>
#include <QObject>
#include <QRegularExpression>
#include <QStringList>
#include <QTimer>

#include <deque>
#include <functional>

namespace vesk::test
{

/// Answers the dialogs that the program shows, one after the other, while it lives.
///
/// A dialog for which no answer is left is closed and reported as unexpected.
class DialogUser final : public QObject
{
public:
    DialogUser() { Schedule(); }

    /// Clicks the button with that text; "(&S)" at its end does not count.
    DialogUser& Press(const QString& text)
    {
        static const QRegularExpression s_key(QStringLiteral("\\(&.\\)$"));
        return Do([text](QDialog& dialog) {
            for (auto* pButton : dialog.findChildren<QAbstractButton*>())
            {
                if (pButton->text().remove(s_key) == text)
                    return pButton->click();
            }
            dialog.reject();
        });
    }

    /// Selects a file in a file dialog and accepts it.
    DialogUser& ChooseFile(const QString& path)
    {
        return Do([path](QDialog& dialog) {
            if (auto* pFiles = qobject_cast<QFileDialog*>(&dialog))
                pFiles->selectFile(path);
            dialog.accept();
        });
    }

    DialogUser& Cancel()
    {
        return Do([](QDialog& dialog) { dialog.reject(); });
    }

    DialogUser& Do(std::function<void(QDialog&)> answer)
    {
        m_answers.push_back(std::move(answer));
        return *this;
    }

    /// The texts of the dialogs shown so far: those of messages, the titles of others.
    const QStringList& GetTexts() const { return m_texts; }
    QString GetLastText() const { return m_texts.isEmpty() ? QString() : m_texts.last(); }
    const QStringList& GetUnexpected() const { return m_unexpected; }
    bool HasAnswersLeft() const { return !m_answers.empty(); }

    /// The unexpected dialogs, and a remark if answers are left that no dialog has asked for.
    QStringList GetFaults() const
    {
        return m_unexpected + (HasAnswersLeft() ? QStringList("an answer is left") : QStringList());
    }

private:
    /// A timer of its own for each look, since an answer may open another dialog.
    void Schedule() { QTimer::singleShot(1, this, &DialogUser::Look); }

    void Look()
    {
        Schedule();
        auto* pDialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (pDialog == nullptr || !pDialog->isVisible())
            return;
        const auto* pMessage = qobject_cast<QMessageBox*>(pDialog);
        const QString text = pMessage != nullptr ? pMessage->text() + pMessage->informativeText()
                                                 : pDialog->windowTitle();
        m_texts << text;
        if (m_answers.empty())
        {
            m_unexpected << text;
            pDialog->reject();
            return;
        }
        const std::function<void(QDialog&)> answer = std::move(m_answers.front());
        m_answers.pop_front();
        answer(*pDialog);
    }

    std::deque<std::function<void(QDialog&)>> m_answers;
    QStringList m_texts;
    QStringList m_unexpected;
};

}
