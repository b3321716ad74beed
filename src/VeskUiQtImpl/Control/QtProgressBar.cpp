#include "VeskUiQtImpl/Control/QtProgressBar.h"

#include "VeskUiQtImpl/CheckSite.h"
#include "VeskUiQtImpl/Control/ControlStatus.h"
#include "VeskUiQtImpl/Control/ControlSubscription.h"
#include "VeskUiQtImpl/Control/PropertyName.h"

#include "HostUi/QtText.h"

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
    setStyleSheet(StyleSheet);
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
