#include "Control/CheckBoxGroupDefinition.h"
#include "Control/ComboBoxDefinition.h"
#include "Control/CommandButtonMenuDefinition.h"
#include "Control/QtCheckBoxGroup.h"
#include "Control/QtComboBox.h"
#include "Control/QtRadioButtonGroup.h"
#include "Control/RadioButtonGroupDefinition.h"
#include "Control/VeskIControlFactory.h"
#include "Support/HostFixture.h"

#include <QCheckBox>
#include <QMenu>
#include <QRadioButton>
#include <QToolButton>
#include <QVBoxLayout>
#include <QtTest>

#include <algorithm>
#include <map>
#include <random>

namespace vesk::test
{

namespace
{

constexpr int SequencesPerKind = 1700;
constexpr int StepsPerSequence = 20;

/// The same numbers again for the same seed.
class Dice
{
public:
    explicit Dice(unsigned seed) : m_engine(seed) {}

    /// From 0 to count - 1.
    int Throw(int count) { return static_cast<int>(m_engine() % static_cast<unsigned>(count)); }

private:
    std::mt19937 m_engine;
};

/// Texts that no other item of a sequence has.
class Names
{
public:
    std::wstring Next() { return L"item " + std::to_wstring(++m_last); }

private:
    int m_last = 0;
};

void FlushDeleted()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QStringList ToTexts(const std::vector<std::wstring>& texts)
{
    QStringList result;
    for (const std::wstring& text : texts)
        result.push_back(QString::fromStdWString(text));
    return result;
}

/// The texts of the buttons that stand in a layout, in the order of the layout.
QStringList PlacedTexts(const QWidget& panel)
{
    QStringList texts;
    for (int i = 0; i < panel.layout()->count(); ++i)
    {
        if (const auto* pButton =
                qobject_cast<QAbstractButton*>(panel.layout()->itemAt(i)->widget()))
            texts.push_back(pButton->text());
    }
    return texts;
}

QStringList GroupedTexts(const QButtonGroup& group)
{
    QStringList texts;
    for (const QAbstractButton* pButton : group.buttons())
        texts.push_back(pButton->text());
    return texts;
}

QStringList CheckedTexts(const QButtonGroup& group)
{
    QStringList texts;
    for (const QAbstractButton* pButton : group.buttons())
    {
        if (pButton->isChecked())
            texts.push_back(pButton->text());
    }
    return texts;
}

/// A sequence on one kind of control; each step changes the control and a plain model of it.
class Sequence
{
public:
    explicit Sequence(unsigned seed) : m_dice(seed) {}
    virtual ~Sequence() = default;

    virtual void Step() = 0;

    /// What differs between the control, its definition and the model; empty when nothing does.
    virtual QString Compare() const = 0;

protected:
    Dice m_dice;
    Names m_names;
};

QString Difference(const char* what, const QStringList& actual, const QStringList& expected)
{
    if (actual == expected)
        return {};
    return QStringLiteral("%1: %2 instead of %3. ")
        .arg(QLatin1String(what), actual.join('|'), expected.join('|'));
}

class ComboBoxSequence final : public Sequence
{
public:
    ComboBoxSequence(unsigned seed, QWidget& window) : Sequence(seed), m_parent(&window)
    {
        auto opDefinition = MakeOwner<ComboBoxDefinition>(L"Combo");
        m_pDefinition = opDefinition.Get();
        m_opBox = MakeOwner<QtComboBox>(std::move(opDefinition), &m_parent);
    }

    void Step() override
    {
        const int count = static_cast<int>(m_items.size());
        switch (m_dice.Throw(count > 0 ? 7 : 2))
        {
        case 0:
            return Insert(count);
        case 1:
            return Insert(m_dice.Throw(count + 1));
        case 2:
            return Delete(m_dice.Throw(count));
        case 3:
            return m_dice.Throw(8) == 0 ? Clear() : Insert(m_dice.Throw(count + 1));
        case 4:
            m_current = m_dice.Throw(count + 1) - 1;
            return m_pDefinition->SetCurrentIndex(m_current);
        case 5:
            m_current = std::min(m_current + 1, count - 1);
            return QTest::keyClick(m_opBox.Get(), Qt::Key_Down);
        default:
            m_current = m_current > 0 ? m_current - 1 : m_current;
            return QTest::keyClick(m_opBox.Get(), Qt::Key_Up);
        }
    }

    QString Compare() const override
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

/// What both groups have in common: items that come and go in a panel, and clicks.
class GroupSequence : public Sequence
{
public:
    GroupSequence(unsigned seed, QWidget& window) : Sequence(seed), m_panel(&window) {}

    void Step() override
    {
        const int count = static_cast<int>(m_items.size());
        switch (m_dice.Throw(count > 0 ? 7 : 2))
        {
        case 0:
        case 1:
            return Insert(m_dice.Throw(2) == 0 ? count : m_dice.Throw(count + 1));
        case 2:
            return Delete(m_dice.Throw(count));
        case 3:
            return m_dice.Throw(8) == 0 ? Clear() : Insert(m_dice.Throw(count + 1));
        case 4:
        case 5:
            return ChangeState(m_dice.Throw(count));
        default:
            return Click(m_dice.Throw(count));
        }
    }

    QString Compare() const override
    {
        const QStringList items = ToTexts(m_items);
        const QButtonGroup& group = GetGroup();
        QStringList checked;
        std::copy_if(items.begin(), items.end(), std::back_inserter(checked),
                     [this](const QString& item) { return IsChecked(item.toStdWString()); });
        QStringList shown = CheckedTexts(group);
        std::sort(shown.begin(), shown.end());
        std::sort(checked.begin(), checked.end());
        return Difference("layout", PlacedTexts(m_panel), items) +
               Difference("group", GroupedTexts(group), items) +
               Difference("definition", GetDefined(), items) +
               Difference("checked", shown, checked);
    }

protected:
    virtual void InsertItem(int index, const std::wstring& name) = 0;
    virtual void DeleteItem(int index) = 0;
    virtual void ClearItems() = 0;
    virtual void ChangeState(int index) = 0;
    virtual void NoteClick(const std::wstring& name) = 0;
    virtual bool IsChecked(const std::wstring& name) const = 0;
    virtual const QButtonGroup& GetGroup() const = 0;
    virtual QStringList GetDefined() const = 0;

    const std::wstring& GetName(int index) const
    {
        return m_items[static_cast<std::size_t>(index)];
    }

    static QWidget& Prepare(QWidget& panel)
    {
        new QVBoxLayout(&panel);
        return panel;
    }

    QWidget m_panel;
    std::vector<std::wstring> m_items;

private:
    void Insert(int index)
    {
        const std::wstring name = m_names.Next();
        m_items.insert(m_items.begin() + index, name);
        InsertItem(index, name);
    }

    void Delete(int index)
    {
        m_items.erase(m_items.begin() + index);
        DeleteItem(index);
        FlushDeleted();
    }

    void Clear()
    {
        m_items.clear();
        ClearItems();
        FlushDeleted();
    }

    void Click(int index)
    {
        NoteClick(GetName(index));
        QTest::mouseClick(GetGroup().buttons().at(index), Qt::LeftButton);
    }
};

class CheckBoxSequence final : public GroupSequence
{
public:
    CheckBoxSequence(unsigned seed, QWidget& window) : GroupSequence(seed, window)
    {
        auto opDefinition = MakeOwner<CheckBoxGroupDefinition>(L"Checks");
        m_pDefinition = opDefinition.Get();
        m_opGroup = MakeOwner<QtCheckBoxGroup>(std::move(opDefinition), &Prepare(m_panel));
        m_panel.show();
    }

protected:
    void InsertItem(int index, const std::wstring& name) override
    {
        auto opBox = MakeOwner<CheckBoxDefinition>(name, name);
        m_states[name] = m_dice.Throw(2) == 0;
        opBox->SetCheckState(m_states[name] ? 2 : 0);
        m_pDefinition->InsertCheckBox(index, std::move(opBox));
    }

    void DeleteItem(int index) override { m_pDefinition->DeleteCheckBox(index); }
    void ClearItems() override { m_pDefinition->ClearCheckBoxes(); }

    void ChangeState(int index) override
    {
        bool& isChecked = m_states[GetName(index)];
        isChecked = m_dice.Throw(2) == 0;
        m_pDefinition->SetCheckState(GetName(index), isChecked ? 1 + m_dice.Throw(2) : 0);
    }

    void NoteClick(const std::wstring& name) override { m_states[name] = !m_states[name]; }

    bool IsChecked(const std::wstring& name) const override
    {
        const bool isDefined = m_pDefinition->Find(name)->GetCheckState() != 0;
        return isDefined && m_states.at(name);
    }

    const QButtonGroup& GetGroup() const override { return *m_opGroup; }

    QStringList GetDefined() const override
    {
        QStringList ids;
        for (const ICheckBoxDefinition* pBox : m_pDefinition->GetCheckBoxDefinitions())
            ids.push_back(QString::fromStdWString(pBox->GetId()));
        return ids;
    }

private:
    CheckBoxGroupDefinition* m_pDefinition;
    OwnerPtr<QtCheckBoxGroup> m_opGroup;
    std::map<std::wstring, bool> m_states;
};

class RadioButtonSequence final : public GroupSequence
{
public:
    RadioButtonSequence(unsigned seed, QWidget& window) : GroupSequence(seed, window)
    {
        auto opDefinition = MakeOwner<RadioButtonGroupDefinition>(L"Radios");
        m_pDefinition = opDefinition.Get();
        m_opGroup = MakeOwner<QtRadioButtonGroup>(std::move(opDefinition), &Prepare(m_panel));
        m_panel.show();
    }

protected:
    void InsertItem(int index, const std::wstring& name) override
    {
        m_pDefinition->InsertRadioButton(index, MakeOwner<RadioButtonDefinition>(name, name));
    }

    void DeleteItem(int index) override { m_pDefinition->DeleteRadioButton(index); }
    void ClearItems() override { m_pDefinition->ClearRadioButtons(); }

    void ChangeState(int index) override
    {
        m_current = GetName(index);
        m_pDefinition->SetCurrentRadioButtonId(m_current);
    }

    void NoteClick(const std::wstring& name) override { m_current = name; }

    bool IsChecked(const std::wstring& name) const override
    {
        const bool isCurrent =
            std::find(m_items.begin(), m_items.end(), m_current) != m_items.end();
        const std::wstring expected = isCurrent ? m_current : std::wstring();
        return m_pDefinition->GetCurrentRadioButtonId() == expected && name == m_current;
    }

    const QButtonGroup& GetGroup() const override { return *m_opGroup; }

    QStringList GetDefined() const override
    {
        QStringList ids;
        for (const IRadioButtonDefinition* pButton : m_pDefinition->GetRadioButtonDefinitions())
            ids.push_back(QString::fromStdWString(pButton->GetId()));
        return ids;
    }

private:
    RadioButtonGroupDefinition* m_pDefinition;
    OwnerPtr<QtRadioButtonGroup> m_opGroup;
    std::wstring m_current;
};

/// Entries and sub-menus of a menu; single ones never go.
class MenuSequence final : public Sequence
{
public:
    MenuSequence(unsigned seed, QWidget&) : Sequence(seed)
    {
        auto opDefinition = MakeOwner<CommandButtonMenuDefinition>(L"Menu", L"");
        m_pDefinition = opDefinition.Get();
        m_opControl =
            VeskIControlFactory::Get()->CreateQtCommandButtonMenu(std::move(opDefinition));
        m_pButton = dynamic_cast<QToolButton*>(m_opControl.Get());
    }

    void Step() override
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

    QString Compare() const override
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
            const QString difference = sequence.Compare();
            QVERIFY2(difference.isEmpty(), qPrintable(QStringLiteral("seed %1, step %2: %3")
                                                          .arg(firstSeed + i)
                                                          .arg(step)
                                                          .arg(difference)));
        }
    }
}

}

/// Control, definition and a plain model agree after each of many random changes.
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

QTEST_MAIN(vesk::test::RandomChangesTest)
#include "RandomChangesTest.moc"
