#pragma once

#include "Model/SketchContent.h"
#include "Output/PaperPainter.h"

#include <QDialog>
#include <QPageSize>

#include <optional>

class PaperPreview;
class QComboBox;
class QLabel;
class QPushButton;

/// What the user wants to have printed.
struct PrintJob
{
    QString printer; ///< Its name; empty for a PDF file.
    QPageSize page;
    bool isLandscape = false;
    PaperPlacement placement;
};

/// Asks how to print a drawing, and shows how it will lie on the paper.
class PrintDialog final : public QDialog
{
    Q_OBJECT

public:
    /// The content has visible entities.
    PrintDialog(SketchContent content, QWidget* pParent);

    /// What is chosen; nothing while the scale is not valid.
    std::optional<PrintJob> GetJob() const;

private:
    void AddRows();
    void OnChanged();
    std::optional<double> GetScale(const QSizeF& paper) const;

    const SketchContent m_content;
    const ShapeBounds m_bounds;
    QComboBox* m_pPrinter;
    QComboBox* m_pPaper;
    QComboBox* m_pOrientation;
    QComboBox* m_pScale;
    PaperPreview* m_pPreview;
    QLabel* m_pRemark;
    QPushButton* m_pPrint = nullptr;
};
