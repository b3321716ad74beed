// The cost of a check-box group beyond the Qt calls anybody would write by hand.

#include "Comparison.h"

#include "Control/CheckBoxGroupDefinition.h"
#include "VeskUiQtImpl/Control/QtCheckBoxGroup.h"

#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QElapsedTimer>
#include <QVBoxLayout>
#include <QWidget>

#include <functional>
#include <string>
#include <vector>

using namespace vesk;

namespace
{

constexpr int BoxCount = 10000;
constexpr int Rounds = 7;

/// One deletion takes microseconds: the mean of several is more meaningful than the first one,
/// which runs with cold caches.
constexpr int Deletions = 20;
constexpr double Limit = 1.5;

double Milliseconds(const std::function<void()>& step)
{
    QElapsedTimer timer;
    timer.start();
    step();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

double MeanMilliseconds(const std::function<void()>& deletion)
{
    const auto deleteSome = [&deletion] {
        for (int i = 0; i < Deletions; ++i)
            deletion();
    };
    return Milliseconds(deleteSome) / Deletions;
}

OwnerPtr<CheckBoxDefinition> MakeItem(int number)
{
    const std::wstring text = std::to_wstring(number);
    auto opItem = MakeOwner<CheckBoxDefinition>(L"Box." + text, L"box " + text);
    opItem->SetTooltip(L"tip " + text);
    return opItem;
}

/// The group of the library, driven through its definition.
std::vector<double> RunOurs()
{
    QWidget panel;
    auto* pLayout = new QVBoxLayout(&panel);
    auto opDefinition = MakeOwner<CheckBoxGroupDefinition>(L"Group");
    CheckBoxGroupDefinition* pDefinition = opDefinition.Get();
    for (int i = 0; i < BoxCount; ++i)
        opDefinition->AddCheckBox(MakeItem(i));
    OwnerPtr<CheckBoxDefinition> opInserted = MakeItem(BoxCount);
    OwnerPtr<QtCheckBoxGroup> opGroup;
    return {
        Milliseconds([&] {
            opGroup = MakeOwner<QtCheckBoxGroup>(std::move(opDefinition), &panel);
            for (QCheckBox* pBox : opGroup->GetAllControls())
                pLayout->addWidget(pBox);
        }),
        Milliseconds([&] { pDefinition->InsertCheckBox(0, std::move(opInserted)); }),
        MeanMilliseconds([&] { pDefinition->DeleteCheckBox(BoxCount / 2); }),
        Milliseconds([&] { pDefinition->ClearCheckBoxes(); }),
    };
}

/// The same boxes written by hand.
class HandWritten
{
public:
    explicit HandWritten(QWidget& panel) : m_panel(panel), m_pLayout(new QVBoxLayout(&panel))
    {
        m_group.setExclusive(false);
    }

    void Build()
    {
        m_boxes.reserve(BoxCount);
        for (int i = 0; i < BoxCount; ++i)
        {
            m_boxes.push_back(MakeBox(i));
            m_group.addButton(m_boxes.back(), NextId(i));
            m_pLayout->addWidget(m_boxes.back());
        }
    }

    void InsertFirst()
    {
        for (QCheckBox* pBox : m_boxes)
            m_group.removeButton(pBox);
        QCheckBox* pInserted = MakeBox(BoxCount);
        m_pLayout->insertWidget(m_pLayout->indexOf(m_boxes.front()), pInserted);
        m_boxes.insert(m_boxes.begin(), pInserted);
        int number = 0;
        for (QCheckBox* pBox : m_boxes)
            m_group.addButton(pBox, NextId(number++));
    }

    void Delete(int index)
    {
        const auto place = m_boxes.begin() + index;
        m_group.removeButton(*place);
        (*place)->deleteLater();
        m_boxes.erase(place);
    }

    void Clear()
    {
        for (QCheckBox* pBox : m_boxes)
        {
            m_group.removeButton(pBox);
            pBox->deleteLater();
        }
        m_boxes.clear();
    }

private:
    /// Follows the automatic ids, without the search for a free one.
    static int NextId(int number) { return -2 - number; }

    QCheckBox* MakeBox(int number)
    {
        const QString text = QString::number(number);
        auto* pBox = new QCheckBox(QStringLiteral("box ") + text, &m_panel);
        pBox->setProperty("IsDefinition", true);
        pBox->setObjectName(QStringLiteral("Box.") + text);
        pBox->setToolTip(QStringLiteral("tip ") + text);
        pBox->setCheckState(Qt::Unchecked);
        pBox->setVisible(true);
        pBox->setEnabled(true);
        return pBox;
    }

    QWidget& m_panel;
    QVBoxLayout* m_pLayout;
    QButtonGroup m_group;
    std::vector<QCheckBox*> m_boxes;
};

std::vector<double> RunByHand()
{
    QWidget panel;
    HandWritten group(panel);
    return {
        Milliseconds([&] { group.Build(); }),
        Milliseconds([&] { group.InsertFirst(); }),
        MeanMilliseconds([&] { group.Delete(BoxCount / 2); }),
        Milliseconds([&] { group.Clear(); }),
    };
}

}

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    Comparison comparison("a group of 10,000 check boxes",
                          {"build", "insert one at 0", "delete one", "clear"}, Limit);
    for (int round = 0; round < Rounds; ++round)
    {
        const std::vector<double> reference = RunByHand();
        comparison.AddRound(RunOurs(), reference);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return comparison.Report(argc > 1 ? argv[1] : "group.json");
}
