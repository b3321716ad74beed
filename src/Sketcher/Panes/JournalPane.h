#pragma once

#include "Dock/IPropertyWidget.h"

#include <QWidget>

class JournalModel;
class QAction;
class QLabel;
class QListView;

/// The records of the journal as they come. Selected records can be copied as they are in the file.
/// The pane says so while records do not reach the file.
class JournalPane final : public QWidget, public vesk::IWidget
{
    Q_OBJECT

public:
    JournalPane();

    void UpdateStatus() override;

protected:
    void changeEvent(QEvent* pEvent) override;
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    void ShowTexts();
    void Copy() const;

    JournalModel* m_pModel;
    QLabel* m_pState; ///< Shown while records do not reach the file.
    QListView* m_pView;
    QAction* m_pCopy;
};
