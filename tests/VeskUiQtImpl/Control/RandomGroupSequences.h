#pragma once

#include "Control/CheckBoxGroupDefinition.h"
#include "Control/RadioButtonGroupDefinition.h"
#include "Control/RandomSequence.h"
#include "Support/TestValues.h"
#include "VeskUiQtImpl/Control/QtCheckBoxGroup.h"
#include "VeskUiQtImpl/Control/QtRadioButtonGroup.h"

#include <QCheckBox>
#include <QRadioButton>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>
#include <map>

namespace vesk::test
{

/// The texts of the buttons in a layout, in layout order.
inline QStringList PlacedTexts(const QWidget& panel)
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

inline QStringList GroupedTexts(const QButtonGroup& group)
{
    QStringList texts;
    for (const QAbstractButton* pButton : group.buttons())
        texts.push_back(pButton->text());
    return texts;
}

inline QStringList CheckedTexts(const QButtonGroup& group)
{
    QStringList texts;
    for (const QAbstractButton* pButton : group.buttons())
    {
        if (pButton->isChecked())
            texts.push_back(pButton->text());
    }
    return texts;
}

/// What both groups have in common: items that are added to and removed from a panel, and clicks.
class GroupSequence : public Sequence
{
public:
    GroupSequence(unsigned seed, QWidget& window) : Sequence(seed), m_panel(&window) {}

protected:
    void Change() override
    {
        const int count = static_cast<int>(m_items.size());
        if (count > 0 && m_dice.Throw(7) == 0)
            Click(m_dice.Throw(count));
        else
            ChangeByProgram();
    }

    void ChangeByProgram() override
    {
        const int count = static_cast<int>(m_items.size());
        switch (m_dice.Throw(count > 0 ? 6 : 2))
        {
        case 0:
        case 1:
            return Insert(m_dice.Throw(2) == 0 ? count : m_dice.Throw(count + 1));
        case 2:
            return Delete(m_dice.Throw(count));
        case 3:
            return m_dice.Throw(8) == 0 ? Clear() : Insert(m_dice.Throw(count + 1));
        default:
            return ChangeState(m_dice.Throw(count));
        }
    }

    QString CompareControl() const override
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

    virtual void InsertItem(int index, const std::wstring& name) = 0;
    virtual void DeleteItem(int index) = 0;
    virtual void ClearItems() = 0;
    virtual void ChangeState(int index) = 0;
    virtual void NoteClick(const std::wstring& name) = 0;
    virtual bool IsChecked(const std::wstring& name) const = 0;
    virtual bool MayGo(const std::wstring&) const { return true; }
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
        if (!MayGo(GetName(index)))
            return;
        m_items.erase(m_items.begin() + index);
        DeleteItem(index);
    }

    void Clear()
    {
        m_items.clear();
        ClearItems();
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
        m_pDefinition->GetControlDefinitionChangeEvent()->Add(&m_before);
        m_opGroup = MakeOwner<QtCheckBoxGroup>(std::move(opDefinition), &Prepare(m_panel));
        m_pDefinition->GetControlDefinitionChangeEvent()->Add(&m_behind);
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
        m_pDefinition->GetControlDefinitionChangeEvent()->Add(&m_before);
        m_opGroup = MakeOwner<QtRadioButtonGroup>(std::move(opDefinition), &Prepare(m_panel));
        m_pDefinition->GetControlDefinitionChangeEvent()->Add(&m_behind);
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
        m_stepOfChoice = GetStep();
        m_pDefinition->SetCurrentRadioButtonId(m_current);
    }

    /// A group never unchecks the previous button, so it must have been notified of a choice before
    /// that item may be removed.
    bool MayGo(const std::wstring& name) const override
    {
        return name != m_current || m_stepOfChoice != GetStep();
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
    int m_stepOfChoice = 0;
};

}
