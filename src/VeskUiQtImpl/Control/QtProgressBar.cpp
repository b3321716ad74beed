#include "VeskUiQtImpl/Control/QtProgressBar.h"

#include "VeskUiQtImpl/CheckSite.h"
#include "VeskUiQtImpl/Control/ControlStatus.h"
#include "VeskUiQtImpl/Control/ControlSubscription.h"
#include "VeskUiQtImpl/Control/PropertyName.h"

#include "HostUi/QtText.h"

#include <QPointer>
#include <QString>
#include <QStyle>
#include <QVariant>

namespace vesk
{
namespace
{

constexpr int Height = 18;

// Qt ignores "margin - top" and draws the chunk without margins, which is the intended appearance.
constexpr char StyleSheet[] = "QProgressBar \n"
                              "{\n"
                              "border: 1px solid #adcdf2;   \n"
                              "text-align: center;\n"
                              "}\n"
                              "QProgressBar::chunk \n"
                              "{\n"
                              "background-color: #6babf5;   \n"
                              "margin - top: 2px;\n"
                              "margin - bottom: 2px;\n"
                              "}\n";

/// Sets the sheet. A widget given its first one makes a style that reads sheets, and parses it at
/// once; a widget that has such a style parses it when it is first shown. So all bars share one.
void SetStyleSheet(QProgressBar& bar)
{
    static const QString s_sheet = StyleSheet;
    static QPointer<QStyle> s_pStyle;
    if (s_pStyle != nullptr)
    {
        bar.setStyle(s_pStyle);
        // The style is not the bar's own: it follows its parent and the application.
        bar.setAttribute(Qt::WA_SetStyle, false);
    }
    bar.setStyleSheet(s_sheet);
    s_pStyle = bar.style();
}

}

QtProgressBar::QtProgressBar(OwnerPtr<IProgressBarDefinition> pControlDefinition, QWidget*)
    : m_pControlDefinition(std::move(pControlDefinition))
{
    if (!Check(m_pControlDefinition != nullptr,
               VESK_SITE("vesk::QtProgressBar::QtProgressBar", L"pControlDefinition是空指针")))
        return;

    setProperty(PropertyName::IsDefinition, true);
    setObjectName(ToQString(m_pControlDefinition->GetId()));
    setToolTip(ToQString(m_pControlDefinition->GetTooltip()));
    ApplyProgress();
    setFixedHeight(Height);
    SetStyleSheet(*this);
    Subscribe(m_pControlDefinition.Get(), this);
}

QtProgressBar::~QtProgressBar()
{
    Unsubscribe(m_pControlDefinition.Get(), this);
}

IControlDefinition* QtProgressBar::GetControlDefinition() const
{
    return m_pControlDefinition.Get();
}

void QtProgressBar::UpdateStatus()
{
    if (!Check(m_pControlDefinition != nullptr,
               VESK_SITE("vesk::QtProgressBar::UpdateStatus", L"m_pControlDefinition为空")))
        return;

    ApplyStatus(*this, *m_pControlDefinition);
}

void QtProgressBar::On(IControlDefinitionChangeEventArgs* pArgs)
{
    if (!Check(pArgs != nullptr, VESK_SITE("vesk::QtProgressBar::On", L"pArgs为空")))
        return;
    if (pArgs->GetType() != ControlDefinitionChangeEventType::PropertyChanged)
        return;
    if (m_pControlDefinition == nullptr)
        return;

    ApplyProgress();
    ApplyStatus(*this, *m_pControlDefinition);
}

void QtProgressBar::ApplyProgress()
{
    setTextVisible(m_pControlDefinition->IsTextVisible());
    setValue(m_pControlDefinition->GetValue());
    setFixedWidth(m_pControlDefinition->GetWidth());
}

}
