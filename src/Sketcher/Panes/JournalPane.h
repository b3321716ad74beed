#pragma once

#include "Dock/IPropertyWidget.h"

#include <QWidget>

class JournalModel;
class QListView;

/// The records of the journal as they come. Those that are selected can be copied as they stand in
/// the file.
class JournalPane final : public QWidget, public vesk::IWidget
{
    Q_OBJECT

public:
    JournalPane();

    void UpdateStatus() override;

private:
    void Copy() const;

    JournalModel* m_pModel;
    QListView* m_pView;
};
