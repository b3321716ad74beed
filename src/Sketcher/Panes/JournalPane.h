#pragma once

#include "Dock/IPropertyWidget.h"

#include <QWidget>

class JournalModel;
class QLabel;
class QListView;

/// The records of the journal as they come. Those that are selected can be copied as they stand in
/// the file. While the file does not get them, the pane says so.
class JournalPane final : public QWidget, public vesk::IWidget
{
    Q_OBJECT

public:
    JournalPane();

    void UpdateStatus() override;

private:
    void Copy() const;

    JournalModel* m_pModel;
    QLabel* m_pState; ///< Shown while the records are not kept.
    QListView* m_pView;
};
