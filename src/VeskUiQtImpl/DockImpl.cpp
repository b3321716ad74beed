#include "VeskUiQtImpl/DockImpl.h"

#include "Dock/IPropertyWidget.h"
#include "Foundation/NqStyleSheetHelper.h"

#include "HostUi/QtText.h"

namespace vesk
{
namespace
{

/// The style sheet of the application, converted again only when it has changed: all panes with the
/// same sheet share one text.
QString CurrentStyleSheet()
{
    static QString s_sheet = QLatin1String("");
    const std::wstring& current = NqStyleSheetHelper::Instance()->GetCurrentStyleData();
    if (!IsSameText(s_sheet, current))
        s_sheet = ToQString(current);
    return s_sheet;
}

}

DockImpl::DockImpl(const std::wstring& name, const std::wstring& title, QWidget* pParent)
    : QDockWidget(ToQString(title), pParent), m_name(name)
{
    setStyleSheet(CurrentStyleSheet());
}

DockImpl::~DockImpl() = default;

const std::wstring& DockImpl::GetName() const
{
    return m_name;
}

void DockImpl::Move(int x, int y)
{
    move(QPoint(x, y));
}

IWidget* DockImpl::GetWidget() const
{
    return m_pContent;
}

void DockImpl::SetWidget(OwnerPtr<IWidget> opWidget)
{
    m_pContent = opWidget.Release();
    if (auto* pWidget = dynamic_cast<QWidget*>(m_pContent))
        setWidget(pWidget);
}

void DockImpl::SetTitle(const std::wstring& title)
{
    setWindowTitle(ToQString(title));
}

std::wstring DockImpl::GetTitle() const
{
    return ToWide(windowTitle());
}

void DockImpl::Show()
{
    show();
}

void DockImpl::Hide()
{
    hide();
}

void DockImpl::Raise()
{
    raise();
}

bool DockImpl::IsHidden() const
{
    return isHidden();
}

void DockImpl::SetFloating(bool isFloating)
{
    setFloating(isFloating);
}

bool DockImpl::IsFloating() const
{
    return isFloating();
}

}
