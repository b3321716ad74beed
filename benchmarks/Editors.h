#pragma once

#include "Dimension/LinearTemporaryDimensionContext.h"
#include "Foundation/Any.h"
#include "HostCore.h"
#include "Journal/IJournalManager.h"
#include "Journal/IJournalUiObject.h"
#include "View/IUiManager.h"
#include "View/IUiView.h"
#include "View/ModelView.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QString>
#include <QWidget>

#include <limits>
#include <string>

namespace vesk
{

constexpr int DimensionEditorKind = 3;

/// The look of the editor, from the library's description of it.
constexpr char EditorSheet[] =
    "QLineEdit{ color:rgba(199, 199, 120, 100%); border:2px solid rgba(199, 199, 120, 100%); "
    "font:10pt; border-radius:4px}QLineEdit:!enabled{ color:rgba(100, 100, 100, "
    "100%);}QLineEdit:focus{ color:rgba(0, 0, 0, 100%); background:rgba(255, 255, 255, 100%);}";

/// A view that shows nothing.
class EmptyView final : public QWidget, public IUiView
{
public:
    explicit EmptyView(QWidget* pParent) : QWidget(pParent)
    {
        setFocusPolicy(Qt::StrongFocus);
        resize(800, 600);
        m_camera.SetSize(800, 600);
        m_windowId = winId();
    }

    std::uint32_t GetId() const override { return 1; }
    WindowId GetWindowId() const override { return m_windowId; }
    IModelView* GetModelView() const override { return &m_camera; }
    void SetViewText(const std::wstring&) override {}
    void Activate() override {}
    void Redraw() override { update(); }

private:
    mutable ModelView m_camera;
    WindowId m_windowId = 0;
};

/// The main window of a program.
class MainFrame final : public QWidget, public IApplicationWindow, public IUiManager
{
public:
    MainFrame() { Set(this); }
    ~MainFrame() override { Set(nullptr); }

    WindowId GetWindowId() const override { return winId(); }
    IApplicationWindow* GetMainWindow() const override { return const_cast<MainFrame*>(this); }
    IDockManager* GetDockManager() const override { return nullptr; }
};

/// A host with a view in a window, both on screen.
struct EditorDesk
{
    EditorDesk()
    {
        core.GetViewManager().AddView(&view);
        window.resize(800, 600);
        window.show();
        Return();
    }
    ~EditorDesk() { core.GetViewManager().RemoveView(&view); }

    /// Lets the window system do what it was asked for.
    static void Settle()
    {
        for (int i = 0; i < 3; ++i)
            QCoreApplication::processEvents();
    }

    /// Gives the keyboard back to the view.
    void Return()
    {
        window.activateWindow();
        view.setFocus();
        Settle();
    }

    /// A line across the middle of the view.
    static LinearTemporaryDimensionContext Context()
    {
        return {Coordinate3d(), Vector3d(-100, 0, 0), Vector3d(100, 50, 0)};
    }

    HostCore core;
    MainFrame window;
    EmptyView view{&window};
};

/// Tells the journal of an editor.
inline void Announce(QLineEdit& editor)
{
    OwnerPtr<IJournalUiObject> opObject = IJournalUiObject::Create();
    opObject->SetUiObject(Any(static_cast<QObject*>(&editor)));
    IJournalManager::Get()->AddUiObject(std::move(opObject), DimensionEditorKind, 0);
}

/// The same editor as one would write it by hand: each step once, in the order that costs least. A
/// sheet set before the editor is first shown would take a tenth longer.
class PlainEditor final : public QLineEdit
{
public:
    PlainEditor(QWidget& view, QObject& filter) : QLineEdit(&view), m_filter(filter)
    {
        setObjectName(QStringLiteral("ViewInputLineEdit"));
        setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
        setMaxLength(std::numeric_limits<int>::max());
    }

    /// Whoever opens it sees its events first.
    void Open(const QString& text, const QSize& size, const QPoint& centre)
    {
        installEventFilter(&m_filter);
        setFixedSize(size);
        show();
        activateWindow();
        setFocus(Qt::OtherFocusReason);
        if (styleSheet().isEmpty())
            SetLook();
        setText(text);
        move(parentWidget()->mapToGlobal(QPoint(0, 0)) + centre -
             QPoint(size.width() / 2, size.height() / 2));
        Announce(*this);
        parentWidget()->update();
    }

    void Close()
    {
        clearFocus();
        hide();
    }

private:
    void SetLook()
    {
        setStyleSheet(QString::fromLatin1(EditorSheet));
        QPalette white = palette();
        white.setBrush(QPalette::Base, Qt::white);
        setPalette(white);
    }

    QObject& m_filter;
};

}
