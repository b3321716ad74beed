#include "Output/PrintDialog.h"

#include "Model/UiText.h"
#include "Output/PaperPreview.h"
#include "Output/PrintLayout.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPrinterInfo>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace
{

constexpr QPageSize::PageSizeId PaperSizes[] = {QPageSize::A4, QPageSize::A3, QPageSize::A2,
                                                QPageSize::A1, QPageSize::A0, QPageSize::Letter};

QComboBox* MakeChoice(const QString& name, const QStringList& items)
{
    auto* pChoice = new QComboBox;
    pChoice->setObjectName(name);
    pChoice->addItems(items);
    return pChoice;
}

QStringList PaperNames()
{
    QStringList names;
    for (const QPageSize::PageSizeId id : PaperSizes)
        names << QPageSize(id).name();
    return names;
}

}

PrintDialog::PrintDialog(SketchContent content, QWidget* pParent)
    : QDialog(pParent), m_content(std::move(content)), m_bounds(*VisibleBounds(m_content)),
      m_pPrinter(MakeChoice(QStringLiteral("PrintPrinter"), QPrinterInfo::availablePrinterNames())),
      m_pPaper(MakeChoice(QStringLiteral("PrintPaper"), PaperNames())),
      m_pOrientation(MakeChoice(QStringLiteral("PrintOrientation"), {"纵向"_tr, "横向"_tr})),
      m_pScale(MakeChoice(QStringLiteral("PrintScale"),
                          {"布满"_tr, QStringLiteral("1:1"), QStringLiteral("1:2"),
                           QStringLiteral("1:5"), QStringLiteral("1:10"), QStringLiteral("1:20"),
                           QStringLiteral("1:50"), QStringLiteral("1:100"), QStringLiteral("2:1"),
                           QStringLiteral("5:1")})),
      m_pPreview(new PaperPreview(m_content)), m_pRemark(new QLabel)
{
    setObjectName(QStringLiteral("PrintDialog"));
    setWindowTitle("打印"_tr);
    m_pPrinter->addItem("PDF 文件"_tr);
    m_pScale->setEditable(true);
    m_pPreview->setObjectName(QStringLiteral("PrintPreview"));
    m_pRemark->setObjectName(QStringLiteral("PrintRemark"));
    m_pRemark->setWordWrap(true);
    AddRows();
    const vesk::Vector3d size = m_bounds.high - m_bounds.low;
    m_pOrientation->setCurrentIndex(size.x() > size.y() ? 1 : 0);
    for (QComboBox* pChoice : {m_pPaper, m_pOrientation})
        connect(pChoice, qOverload<int>(&QComboBox::currentIndexChanged), this,
                &PrintDialog::OnChanged);
    connect(m_pScale, &QComboBox::editTextChanged, this, &PrintDialog::OnChanged);
    OnChanged();
}

std::optional<PrintJob> PrintDialog::GetJob() const
{
    PrintJob job;
    const bool isFile = m_pPrinter->currentIndex() == m_pPrinter->count() - 1;
    job.printer = isFile ? QString() : m_pPrinter->currentText();
    job.page = QPageSize(PaperSizes[m_pPaper->currentIndex()]);
    job.isLandscape = m_pOrientation->currentIndex() == 1;
    const QSizeF upright = job.page.size(QPageSize::Millimeter);
    const QSizeF paper = job.isLandscape ? upright.transposed() : upright;
    const std::optional<double> scale = GetScale(paper);
    if (!scale.has_value())
        return std::nullopt;
    job.placement = PaperPlacement::Centred(m_bounds, *scale, paper);
    return job;
}

void PrintDialog::AddRows()
{
    auto* pRows = new QFormLayout;
    pRows->addRow("打印机(&P)"_tr, m_pPrinter);
    pRows->addRow("纸张(&S)"_tr, m_pPaper);
    pRows->addRow("方向(&O)"_tr, m_pOrientation);
    pRows->addRow("比例(&C)"_tr, m_pScale);
    pRows->addRow(m_pRemark);
    auto* pButtons = new QDialogButtonBox;
    m_pPrint = pButtons->addButton("打印"_tr, QDialogButtonBox::AcceptRole);
    pButtons->addButton("取消"_tr, QDialogButtonBox::RejectRole);
    connect(pButtons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(pButtons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* pSide = new QVBoxLayout;
    pSide->addLayout(pRows);
    pSide->addStretch();
    pSide->addWidget(pButtons);
    auto* pLayout = new QHBoxLayout(this);
    pLayout->addLayout(pSide);
    pLayout->addWidget(m_pPreview, 1);
}

void PrintDialog::OnChanged()
{
    const std::optional<PrintJob> job = GetJob();
    m_pPrint->setEnabled(job.has_value());
    if (!job.has_value())
    {
        m_pRemark->setText("比例应写成 1:50 或 2:1"_tr);
        return;
    }
    const double scale = job->placement.scale;
    m_pRemark->setText(FitsPaper(m_bounds, scale, job->placement.paper)
                           ? "比例 %1"_tr.arg(ScaleText(scale))
                           : "图形超出纸面，超出部分不会打印"_tr);
    m_pPreview->Show(job->placement);
}

/// Nothing if the text is not a scale.
std::optional<double> PrintDialog::GetScale(const QSizeF& paper) const
{
    const bool isFitted = m_pScale->currentText() == m_pScale->itemText(0);
    return isFitted ? std::make_optional(FitScale(m_bounds, paper))
                    : ReadScale(m_pScale->currentText());
}
