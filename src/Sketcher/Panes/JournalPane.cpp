#include "Panes/JournalPane.h"

#include "Model/UiText.h"
#include "Panes/JournalModel.h"
#include "Panes/TextCellDelegate.h"

#include "Journal/JournalManager.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QPersistentModelIndex>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

using vesk::JournalManager;

JournalPane::JournalPane()
    : m_pModel(new JournalModel(this)), m_pState(new QLabel), m_pView(new QListView),
      m_pCopy(new QAction(m_pView))
{
    m_pState->setObjectName(QStringLiteral("JournalState"));
    m_pState->setWordWrap(true);
    m_pState->setMargin(3);
    m_pState->hide();
    m_pView->setObjectName(QStringLiteral("JournalRecords"));
    m_pView->setModel(m_pModel);
    m_pView->setUniformItemSizes(true);
    m_pView->setItemDelegate(new TextCellDelegate(m_pView));
    m_pView->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_pView->setFrameShape(QFrame::NoFrame);

    m_pView->installEventFilter(this);
    connect(m_pCopy, &QAction::triggered, this, &JournalPane::Copy);
    m_pView->addAction(m_pCopy);
    m_pView->setContextMenuPolicy(Qt::ActionsContextMenu);

    auto* pLayout = new QVBoxLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(m_pState);
    pLayout->addWidget(m_pView);
    ShowTexts();
}

/// Scrolls to the newest record unless the user has scrolled back.
void JournalPane::UpdateStatus()
{
    const QScrollBar* pBar = m_pView->verticalScrollBar();
    const bool isAtEnd = pBar->value() == pBar->maximum();
    // Older records may be dropped, which moves the visible ones up.
    const QPersistentModelIndex top = m_pView->indexAt(QPoint(0, 0));
    m_pState->setVisible(!JournalManager::GetInstance().IsKept());
    layout()->activate();
    m_pModel->Refresh();
    if (isAtEnd)
        m_pView->scrollToBottom();
    else if (top.isValid())
        m_pView->scrollTo(top, QAbstractItemView::PositionAtTop);
}

void JournalPane::ShowTexts()
{
    m_pState->setText("操作没有存入日志文件"_tr);
    // No shortcut: it would be ambiguous with that of the command that copies entities.
    const QString keys = QKeySequence(QKeySequence::Copy).toString(QKeySequence::NativeText);
    m_pCopy->setText("复制记录"_tr + QLatin1Char('\t') + keys);
    m_pView->viewport()->update();
}

void JournalPane::changeEvent(QEvent* pEvent)
{
    QWidget::changeEvent(pEvent);
    if (pEvent->type() == QEvent::LanguageChange)
        ShowTexts();
}

/// Takes the keys that copy while records are selected.
bool JournalPane::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    const bool isKey =
        pEvent->type() == QEvent::ShortcutOverride || pEvent->type() == QEvent::KeyPress;
    const bool isCopy = isKey && static_cast<QKeyEvent*>(pEvent)->matches(QKeySequence::Copy);
    if (!isCopy || !m_pView->selectionModel()->hasSelection())
        return QWidget::eventFilter(pWatched, pEvent);
    if (pEvent->type() == QEvent::KeyPress)
        Copy();
    pEvent->accept();
    return true;
}

void JournalPane::Copy() const
{
    QModelIndexList indexes = m_pView->selectionModel()->selectedIndexes();
    std::sort(indexes.begin(), indexes.end());
    QString text;
    for (const QModelIndex& index : indexes)
        text += m_pModel->GetLine(index.row()) + QLatin1Char('\n');
    if (!text.isEmpty())
        QApplication::clipboard()->setText(text);
}
