#pragma once

#include "Control/ButtonGroupDefinitions.h"
#include "Control/ChangeArgs.h"
#include "Support/HostFixture.h"
#include "Support/TestValues.h"
#include "VeskUiQtImpl/Control/QtCheckBoxGroup.h"
#include "VeskUiQtImpl/Control/QtRadioButtonGroup.h"

#include <QAbstractButton>
#include <QBoxLayout>
#include <QCheckBox>
#include <QLabel>
#include <QRadioButton>

#include <deque>
#include <memory>
#include <string>
#include <vector>

namespace vesk::test
{

/// The qualified name of the constructor of a group's class.
inline std::string ConstructorOf(const QButtonGroup& group)
{
    const std::string name = group.metaObject()->className();
    return name + "::" + name.substr(name.rfind(':') + 1);
}

/// A group of either kind, in a box layout with a label before and after the buttons. The fixture
/// owns its items.
class GroupFixture
{
public:
    virtual ~GroupFixture() = default;

    virtual QButtonGroup& GetGroup() = 0;
    virtual IControl& GetControl() = 0;
    virtual IControlDefinition* GetDefinition() = 0;
    virtual IControlDefinitionChangeEventHandler& GetHandler() = 0;
    virtual QList<QAbstractButton*> GetControls() = 0;

    /// Each changes the items of the definition and raises its event.
    virtual void AddItem(const std::wstring& id) = 0;
    virtual void InsertItem(int index, const std::wstring& id) = 0;
    virtual void DeleteItem(int index) = 0;
    virtual void ClearItems() = 0;
    virtual void RaisePropertyChanged() = 0;

    /// Each changes what the definition holds without raising its event.
    virtual void SetItem(int index, bool isVisible, bool isEnabled) = 0;
    virtual void ForgetItem(int index) = 0;
    virtual void RemoveLastItem() = 0;

    /// An item of this kind that is in no definition; it lives as long as the fixture.
    virtual const IControlDefinition* MakeItem(const std::wstring& id) = 0;

    /// Sends the group a change that its definition does not know about.
    void Tell(int type, int index = -1, const IControlDefinition* pItem = nullptr)
    {
        ChangeArgs args(type, index, pItem);
        GetHandler().On(&args);
    }

    /// Places the buttons between the labels, as a host does, and shows the window.
    void PlaceAndShow()
    {
        for (QAbstractButton* pButton : GetControls())
            pLayout->insertWidget(pLayout->count() - 1, pButton);
        parent.show();
    }

    QStringList GetNames() { return NamesOf(GetControls()); }
    QStringList GetGroupedNames() { return NamesOf(GetGroup().buttons()); }

    QList<int> GetIds()
    {
        QList<int> ids;
        for (QAbstractButton* pButton : GetControls())
            ids += GetGroup().id(pButton);
        return ids;
    }

    /// The names of everything in the layout, in order.
    QStringList GetPlacedNames() const
    {
        QStringList names;
        for (int i = 0; i < parent.layout()->count(); ++i)
            names += parent.layout()->itemAt(i)->widget()->objectName();
        return names;
    }

    /// The qualified name of an operation of the group's class.
    std::string Function(const std::string& operation)
    {
        return std::string(GetGroup().metaObject()->className()) + "::" + operation;
    }

    HostFixture host;
    QWidget parent;
    QVBoxLayout* pLayout = new QVBoxLayout(&parent);

protected:
    GroupFixture()
    {
        for (const char* name : {"head", "tail"})
        {
            auto* pLabel = new QLabel;
            pLabel->setObjectName(name);
            pLayout->addWidget(pLabel);
        }
    }

private:
    static QStringList NamesOf(const QList<QAbstractButton*>& buttons)
    {
        QStringList names;
        for (const QAbstractButton* pButton : buttons)
            names += pButton->objectName();
        return names;
    }
};

struct CheckBoxKind
{
    using Group = QtCheckBoxGroup;
    using Definition = LooseCheckBoxGroupDefinition;
    using Item = CheckBoxDefinition;
};

struct RadioButtonKind
{
    using Group = QtRadioButtonGroup;
    using Definition = LooseRadioButtonGroupDefinition;
    using Item = RadioButtonDefinition;
};

template <class Kind>
class GroupFixtureOf final : public GroupFixture
{
public:
    using EventType = ControlDefinitionChangeEventType;

    /// The items named in `ids`; the caption of each is its id in capitals.
    explicit GroupFixtureOf(const std::vector<std::wstring>& ids)
    {
        auto opDefinition = MakeOwner<typename Kind::Definition>();
        pDefinition = opDefinition.Get();
        for (const std::wstring& id : ids)
            pDefinition->items.push_back(Make(id));
        opGroup = MakeOwner<typename Kind::Group>(std::move(opDefinition), &parent);
    }

    QButtonGroup& GetGroup() override { return *opGroup; }
    IControl& GetControl() override { return *opGroup; }
    IControlDefinition* GetDefinition() override { return pDefinition; }
    IControlDefinitionChangeEventHandler& GetHandler() override { return *opGroup; }

    QList<QAbstractButton*> GetControls() override
    {
        QList<QAbstractButton*> buttons;
        for (QAbstractButton* pButton : opGroup->GetAllControls())
            buttons += pButton;
        return buttons;
    }

    void AddItem(const std::wstring& id) override
    {
        const int index = int(pDefinition->items.size());
        pDefinition->items.push_back(Make(id));
        Raise(EventType::Add, index, pDefinition->items.back());
    }

    void InsertItem(int index, const std::wstring& id) override
    {
        const auto place = pDefinition->items.insert(pDefinition->items.begin() + index, Make(id));
        Raise(EventType::Insert, index, *place);
    }

    void DeleteItem(int index) override
    {
        pDefinition->items.erase(pDefinition->items.begin() + index);
        Raise(EventType::Delete, index, nullptr);
    }

    void ClearItems() override
    {
        pDefinition->items.clear();
        Raise(EventType::Clear, -1, nullptr);
    }

    void RaisePropertyChanged() override { Raise(EventType::PropertyChanged, -1, nullptr); }

    void SetItem(int index, bool isVisible, bool isEnabled) override
    {
        m_items[std::size_t(index)].SetVisible(isVisible);
        m_items[std::size_t(index)].SetEnabled(isEnabled);
    }

    void ForgetItem(int index) override { pDefinition->items[std::size_t(index)] = nullptr; }
    void RemoveLastItem() override { pDefinition->items.pop_back(); }
    const IControlDefinition* MakeItem(const std::wstring& id) override { return Make(id); }

    typename Kind::Definition* pDefinition;
    OwnerPtr<typename Kind::Group> opGroup;

private:
    const typename Kind::Item* Make(const std::wstring& id)
    {
        typename Kind::Item& item = m_items.emplace_back(id, L"Caption of " + id);
        item.SetTooltip(L"Tip of " + id);
        return &item;
    }

    void Raise(int type, int index, const IControlDefinition* pItem)
    {
        pDefinition->GetEvent().RaiseItemsChanged(type, index, std::wstring(), pItem);
    }

    std::deque<typename Kind::Item> m_items;
};

using MakeGroup = std::unique_ptr<GroupFixture> (*)(const std::vector<std::wstring>& ids);

template <class Kind>
std::unique_ptr<GroupFixture> MakeGroupOf(const std::vector<std::wstring>& ids)
{
    return std::make_unique<GroupFixtureOf<Kind>>(ids);
}

}

Q_DECLARE_METATYPE(vesk::test::MakeGroup)

namespace vesk::test
{

/// A row for each kind of group.
inline void AddGroupKinds()
{
    QTest::addColumn<MakeGroup>("make");
    QTest::newRow("check boxes") << MakeGroup(&MakeGroupOf<CheckBoxKind>);
    QTest::newRow("radio buttons") << MakeGroup(&MakeGroupOf<RadioButtonKind>);
}

}
