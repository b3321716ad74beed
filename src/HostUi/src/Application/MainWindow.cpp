#include "HostUi/MainWindow.h"

#include "Accessibility/AccessibleTexts.h"
#include "Application/FocusAreas.h"
#include "Texts/HostUiText.h"

#include "Command/ActionManager.h"
#include "Dimension/LengthUnit.h"
#include "HostUi/DrawingView.h"
#include "HostUi/ElidedLabel.h"
#include "HostUi/NumberText.h"
#include "HostUi/QtText.h"
#include "Qtitan/RibbonBar.h"

#include <QCloseEvent>
#include <QDir>
#include <QLabel>
#include <QStatusBar>
#include <QVBoxLayout>

#include <utility>

namespace vesk
{
namespace
{

/// Small enough for any screen, and large enough for ribbon, drawing and status bar without panes.
constexpr QSize Least(480, 400);

/// Explains where to find the warnings that were not shown.
QString TellWhereTheLogIs()
{
    const std::string path = DebugMessageMgr::GetDebugMessageMgr()->GetLogPath();
    if (path.empty())
        return "对话框打开时发生的警告，见标准错误输出"_tr;
    return "对话框打开时发生的警告，见日志：%1"_tr.arg(
        QDir::toNativeSeparators(QString::fromStdString(path)));
}

}

MainWindow::MainWindow()
    : m_pRibbon(new Qtitan::RibbonBar(this)), m_pHint(new ElidedLabel(this)),
      m_pCursor(new QLabel(this)), m_pStates(new ElidedLabel(this)),
      m_pWarningCount(new QLabel(this))
{
    auto* pTop = new QWidget(this);
    auto* pTopLayout = new QVBoxLayout(pTop);
    pTopLayout->setContentsMargins(0, 0, 0, 0);
    pTopLayout->setSpacing(0);
    pTopLayout->addWidget(m_pRibbon);
    setMenuWidget(pTop);
    m_pHint->setObjectName(QStringLiteral("Hint"));
    m_pCursor->setObjectName(QStringLiteral("CursorPosition"));
    m_pCursor->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_pCursor->setMinimumWidth(m_pCursor->fontMetrics().horizontalAdvance(
        QStringLiteral("X -000000.000   Y -000000.000   mm")));
    constexpr int Margin = 6;
    m_pHint->setContentsMargins(Margin, 0, Margin, 0);
    // As high without a hint, so that the drawing does not move when one appears or disappears.
    m_pHint->setText(QStringLiteral("汉"));
    m_pHint->setMinimumHeight(m_pHint->sizeHint().height());
    m_pHint->clear();
    // It gets what the others leave, so that they do not move when it changes.
    m_pHint->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_pCursor->setContentsMargins(Margin, 0, Margin, 0);
    statusBar()->addWidget(m_pHint, 1);
    statusBar()->addPermanentWidget(m_pStates);
    statusBar()->addPermanentWidget(m_pWarningCount);
    statusBar()->addPermanentWidget(m_pCursor);
    m_pWarningCount->setObjectName(QStringLiteral("WarningCount"));
    m_pWarningCount->hide();
    m_pStates->setObjectName(QStringLiteral("States"));
    m_pStates->hide();

    connect(statusBar(), &QStatusBar::messageChanged, this,
            [this](const QString& text) { SetAccessibleTexts(*statusBar(), text, {}); });
    new FocusAreas(*this);
    setMinimumSize(Least);
    // The host identifies windows by their native window.
    winId();
    SetMainWindow(this);
    DebugMessageMgr::GetDebugMessageMgr()->AddObserver(this);
}

MainWindow::~MainWindow()
{
    DebugMessageMgr::GetDebugMessageMgr()->RemoveObserver(this);
    SetMainWindow(nullptr);
}

/// Created anew if there is none: Qt 6 destroys the native window of a window that is closed.
WindowId MainWindow::GetWindowId() const
{
    return winId();
}

WindowId MainWindow::GetWinId() const
{
    return winId();
}

/// Called in any thread, before the warning is counted: the event loop reads the count, once for
/// however many warnings.
void MainWindow::OnDebugWarning(const DebugWarning&)
{
    if (!m_isCountStale.exchange(true))
        QMetaObject::invokeMethod(this, &MainWindow::ShowWarningCount, Qt::QueuedConnection);
}

void MainWindow::SetDrawingView(DrawingView* pView)
{
    setCentralWidget(pView);
    NameLabels();
    connect(pView, &DrawingView::viewTextChanged, m_pHint, &QLabel::setText);
    connect(pView, &DrawingView::viewTextChanged, m_pHint, &QLabel::setToolTip);
    connect(pView, &DrawingView::cursorMoved, this, &MainWindow::OnCursorMoved);
    connect(pView, &DrawingView::cursorLeft, m_pCursor, &QLabel::clear);
}

/// What each of the labels is about; its text is its name.
void MainWindow::NameLabels()
{
    m_pHint->setAccessibleDescription("提示"_tr);
    m_pCursor->setAccessibleDescription("光标位置"_tr);
}

void MainWindow::AddBar(QWidget* pBar)
{
    // Screen readers say at once what appears as an alert.
    SetAccessibleRole(*pBar, QAccessible::AlertMessage);
    menuWidget()->layout()->addWidget(pBar);
}

void MainWindow::ShowNotice(const QString& text)
{
    constexpr int DurationMs = 10000;
    statusBar()->showMessage(text, DurationMs);
}

void MainWindow::ShowState(const QString& subject, Told text, Told details)
{
    m_states[subject] = {std::move(text), std::move(details)};
    ShowStates();
}

void MainWindow::RemoveState(const QString& subject)
{
    m_states.remove(subject);
    ShowStates();
}

void MainWindow::ShowStates()
{
    QStringList texts;
    QStringList tips;
    for (const State& state : std::as_const(m_states))
    {
        texts << state.text();
        tips << (state.details ? state.details() : QString());
    }
    m_pStates->setText(texts.join("；"_tr));
    m_pStates->setToolTip(tips.join(QLatin1Char('\n')));
    m_pStates->setVisible(!m_states.isEmpty());
}

void MainWindow::changeEvent(QEvent* pEvent)
{
    QMainWindow::changeEvent(pEvent);
    if (pEvent->type() != QEvent::LanguageChange)
        return;
    NameLabels();
    ShowStates();
    ShowWarningCount();
}

void MainWindow::closeEvent(QCloseEvent* pEvent)
{
    // All finished work is in the journal already, so there is nothing to ask.
    ActionManager::Reset();
    emit closeAccepted();
    pEvent->accept();
}

void MainWindow::OnCursorMoved(double x, double y)
{
    const LengthUnit& unit = LengthUnit::GetCurrent();
    m_pCursor->setText(QStringLiteral("X %1   Y %2   %3")
                           .arg(ToLocalText(unit.ToShown(x), 3), ToLocalText(unit.ToShown(y), 3),
                                ToQString(unit.GetSymbol())));
}

void MainWindow::ShowWarningCount()
{
    m_isCountStale = false;
    const int count = DebugMessageMgr::GetDebugMessageMgr()->GetUnshownCount();
    m_pWarningCount->setText("未显示的警告：%1"_tr.arg(count));
    m_pWarningCount->setToolTip(TellWhereTheLogIs());
    m_pWarningCount->setVisible(count > 0);
}

}
