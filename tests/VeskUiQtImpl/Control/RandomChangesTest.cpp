#include "Control/ComboBoxDefinition.h"
#include "Control/CommandButtonMenuDefinition.h"
#include "Control/RandomGroupSequences.h"
#include "Control/VeskIControlFactory.h"
#include "Support/HostFixture.h"
#include "Support/TestValues.h"
#include "VeskUiQtImpl/Control/QtComboBox.h"

#include <QMenu>
#include <QToolButton>

#include <algorithm>
#include <random>

namespace vesk::test
{

namespace
{

constexpr int SequencesPerKind = 500;
constexpr int StepsPerSequence = 20;

class ComboBoxSequence final : public Sequence
{
public:
    ComboBoxSequence(unsigned seed, QWidget& window) : Sequence(seed), m_parent(&window)
    {
        auto opDefinition = MakeOwner<ComboBoxDefinition>(L"Combo");
        m_pDefinition = opDefinition.Get();
        m_pDefinition->GetControlDefinitionChangeEvent()->Add(&m_before);
        m_opBox = MakeOwner<QtComboBox>(std::move(opDefinition), &m_parent);
        m_pDefinition->GetControlDefinitionChangeEvent()->Add(&m_behind);
    }

protected:
    void Change() override
    {
        const int count = static_cast<int>(m_items.size());
        switch (m_dice.Throw(count > 0 ? 7 : 1))
        {
        case 5:
            m_current = std::min(m_current + 1, count - 1);
            return QTest::keyClick(m_opBox.Get(), Qt::Key_Down);
        case 6:
            m_current = m_current > 0 ? m_current - 1 : m_current;
            return QTest::keyClick(m_opBox.Get(), Qt::Key_Up);
        default:
            return ChangeByProgram();
        }
    }

    void ChangeByProgram() override
    {
        const int count = static_cast<int>(m_items.size());
        switch (m_dice.Throw(count > 0 ? 5 : 2))
        {
        case 0:
            return Insert(count);
        case 1:
            return Insert(m_dice.Throw(count + 1));
        case 2:
            return Delete(m_dice.Throw(count));
        case 3:
            return m_dice.Throw(8) == 0 ? Clear() : Insert(m_dice.Throw(count + 1));
        default:
            m_current = m_dice.Throw(count + 1) - 1;
            return m_pDefinition->SetCurrentIndex(m_current);
        }
    }

    QString CompareControl() const override
    {
        QStringList shown;
        for (int i = 0; i < m_opBox->count(); ++i)
            shown.push_back(m_opBox->itemText(i));
        const QStringList current{QString::number(m_current)};
        return Difference("items shown", shown, ToTexts(m_items)) +
               Difference("items defined", ToTexts(m_pDefinition->GetItems()), ToTexts(m_items)) +
               Difference("index shown", {QString::number(m_opBox->currentIndex())}, current) +
               Difference("index defined", {QString::number(m_pDefinition->GetCurrentIndex())},
                          current);
    }

private:
    void Insert(int index)
    {
        const std::wstring name = m_names.Next();
        if (m_items.empty())
            m_current = 0;
        else if (index <= m_current)
            ++m_current;
        m_items.insert(m_items.begin() + index, name);
        m_pDefinition->InsertItem(index, name);
    }

    void Delete(int index)
    {
        m_items.erase(m_items.begin() + index);
        if (index < m_current)
            --m_current;
        m_current = std::min(m_current, static_cast<int>(m_items.size()) - 1);
        m_pDefinition->DeleteItem(index);
    }

    void Clear()
    {
        m_items.clear();
        m_current = -1;
        m_pDefinition->ClearItems();
    }

    QWidget m_parent;
    ComboBoxDefinition* m_pDefinition;
    OwnerPtr<QtComboBox> m_opBox;
    std::vector<std::wstring> m_items;
    int m_current = -1;
};

/// Entries and sub-menus of a menu; single entries are never removed.
class MenuSequence final : public Sequence
{
public:
    MenuSequence(unsigned seed, QWidget&) : Sequence(seed)
    {
        auto opDefinition = MakeOwner<CommandButtonMenuDefinition>(L"Menu", L"");
        m_pDefinition = opDefinition.Get();
        m_pDefinition->GetControlDefinitionChangeEvent()->Add(&m_before);
        m_opControl =
            VeskIControlFactory::Get()->CreateQtCommandButtonMenu(std::move(opDefinition));
        m_pDefinition->GetControlDefinitionChangeEvent()->Add(&m_behind);
        m_pButton = dynamic_cast<QToolButton*>(m_opControl.Get());
    }

protected:
    void Change() override { ChangeByProgram(); }

    void ChangeByProgram() override
    {
        const int count = static_cast<int>(m_items.size());
        switch (m_dice.Throw(12))
        {
        case 0:
            m_items.clear();
            return m_pDefinition->ClearMenuItems();
        case 1:
        case 2:
        case 3:
        case 4:
            return Insert(count);
        default:
            return Insert(m_dice.Throw(count + 1));
        }
    }

    QString CompareControl() const override
    {
        QStringList shown;
        for (const QAction* pAction : m_pButton->menu()->actions())
            shown.push_back(pAction->text() + Describe(*pAction));
        QStringList defined;
        for (const IMenuItemDefinition* pItem : m_pDefinition->GetMenuItemDefinitions())
            defined.push_back(QString::fromStdWString(pItem->GetCaption()));
        QStringList captions;
        for (const QString& item : m_items)
            captions.push_back(item.section(' ', 0, 1));
        return Difference("menu", shown, m_items) + Difference("definition", defined, captions);
    }

private:
    static QString Describe(const QAction& action)
    {
        if (action.menu() == nullptr)
            return ' ' + action.property("CommandId").toString();
        QString text;
        for (const QAction* pChild : action.menu()->actions())
            text += QStringLiteral(" [%1]").arg(pChild->property("CommandId").toString());
        return text;
    }

    void Insert(int index)
    {
        const std::wstring name = m_names.Next();
        const QString text = QString::fromStdWString(name);
        if (m_dice.Throw(3) > 0)
        {
            m_items.insert(m_items.begin() + index, text + " run:" + text);
            return m_pDefinition->InsertMenuItem(index, MakeItem(name));
        }
        auto opContainer = MakeOwner<MenuItemContainerDefinition>(name, name);
        QString described = text;
        for (int i = 0; i <= m_dice.Throw(3); ++i)
        {
            const std::wstring child = m_names.Next();
            opContainer->AddMenuItem(MakeItem(child));
            described += " [run:" + QString::fromStdWString(child) + ']';
        }
        m_items.insert(m_items.begin() + index, described);
        m_pDefinition->InsertMenuItem(index, std::move(opContainer));
    }

    static OwnerPtr<IMenuItemDefinition> MakeItem(const std::wstring& name)
    {
        return MakeOwner<CommandMenuItemDefinition>(name, L"run:" + name, name);
    }

    CommandButtonMenuDefinition* m_pDefinition;
    OwnerPtr<IControl> m_opControl;
    QToolButton* m_pButton;
    QStringList m_items;
};

template <class Kind>
void RunSequences()
{
    HostFixture host;
    QWidget window;
    window.show();
    const unsigned firstSeed = std::random_device()();
    qInfo("%d sequences of %d steps, seeds from %u", SequencesPerKind, StepsPerSequence, firstSeed);
    for (unsigned i = 0; i < SequencesPerKind; ++i)
    {
        Kind sequence(firstSeed + i, window);
        for (int step = 0; step < StepsPerSequence; ++step)
        {
            sequence.Step();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            const QString difference = sequence.Compare();
            QVERIFY2(difference.isEmpty(), qPrintable(QStringLiteral("seed %1, step %2: %3")
                                                          .arg(firstSeed + i)
                                                          .arg(step)
                                                          .arg(difference)));
        }
    }
}

}

/// Control, definition and a plain model agree after each of many random changes, some of which are
/// made while another one is being reported.
class RandomChangesTest : public QObject
{
    Q_OBJECT

private slots:
    void comboBoxAgreesWithItsDefinition() { RunSequences<ComboBoxSequence>(); }
    void checkBoxGroupAgreesWithItsDefinition() { RunSequences<CheckBoxSequence>(); }
    void radioButtonGroupAgreesWithItsDefinition() { RunSequences<RadioButtonSequence>(); }
    void menuAgreesWithItsDefinition() { RunSequences<MenuSequence>(); }
};

}

VESK_TESTS(vesk::test::RandomChangesTest);
#include "RandomChangesTest.moc"
