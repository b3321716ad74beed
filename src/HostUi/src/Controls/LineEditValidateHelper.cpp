#include "HostUi/LineEditValidateHelper.h"

#include "HostUi/QtText.h"
#include "Validation/ValidatorBase.h"

#include <QEvent>
#include <QLineEdit>
#include <QPointer>
#include <QWidget>

namespace vesk
{

/// Watches one edit: a red line at its bottom and the tip show that its text would be rejected.
///
/// The line is a child widget, so that it shows whatever style sheet the edit has.
class LineEditValidateHelper::Watch final : public QObject
{
public:
    Watch(QLineEdit* pEdit, const ValidatorBase* pValidator)
        : m_pEdit(pEdit), m_pValidator(pValidator), m_toolTip(pEdit->toolTip()),
          m_pMark(new QWidget(pEdit))
    {
        m_pMark->setAttribute(Qt::WA_TransparentForMouseEvents);
        m_pMark->setAutoFillBackground(true);
        m_pMark->setStyleSheet(QStringLiteral("background: #d64541"));
        pEdit->installEventFilter(this);
        connect(pEdit, &QLineEdit::textChanged, this, &Watch::OnTextChanged);
        OnTextChanged(pEdit->text());
    }

    ~Watch() override
    {
        delete m_pMark;
        if (m_pEdit != nullptr)
            m_pEdit->setToolTip(m_toolTip);
    }

    bool eventFilter(QObject* pWatched, QEvent* pEvent) override
    {
        if (pWatched == m_pEdit && pEvent->type() == QEvent::Resize)
            PlaceMark();
        return QObject::eventFilter(pWatched, pEvent);
    }

private:
    void OnTextChanged(const QString& text)
    {
        const bool isAccepted = m_pValidator->ValidateInput(ToWide(text));
        m_pEdit->setToolTip(isAccepted ? m_toolTip : ToQString(m_pValidator->GetTip()));
        PlaceMark();
        m_pMark->setVisible(!isAccepted);
    }

    void PlaceMark()
    {
        constexpr int Inset = 3;
        constexpr int Thickness = 2;
        m_pMark->setGeometry(Inset, m_pEdit->height() - Inset - Thickness,
                             m_pEdit->width() - 2 * Inset, Thickness);
        m_pMark->raise();
    }

    /// A plain QWidget because it is also used while the edit is being destroyed.
    QPointer<QWidget> m_pEdit;
    const ValidatorBase* m_pValidator;
    QString m_toolTip;
    QPointer<QWidget> m_pMark;
};

LineEditValidateHelper::LineEditValidateHelper(QObject* pParent) : QObject(pParent) {}

LineEditValidateHelper::~LineEditValidateHelper() = default;

void LineEditValidateHelper::SetValidators(
    const std::map<QLineEdit*, const ValidatorBase*>& validators)
{
    m_watches.clear();
    for (const auto& [pEdit, pValidator] : validators)
    {
        if (pEdit != nullptr && pValidator != nullptr)
            m_watches.push_back(std::make_unique<Watch>(pEdit, pValidator));
    }
}

}
