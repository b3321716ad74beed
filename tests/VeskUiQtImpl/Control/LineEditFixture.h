#pragma once

#include "Control/LineEditDefinitions.h"
#include "Support/HostFixture.h"
#include "VeskUiQtImpl/Control/QtLineEdit.h"

namespace vesk::test
{

/// A line edit in a shown window.
struct LineEditFixture
{
    explicit LineEditFixture(const std::wstring& text = L"12.5")
    {
        auto opDefinition = MakeOwner<LineEditDefinition>(L"Edit.Id");
        pDefinition = opDefinition.Get();
        pDefinition->SetText(text);
        pDefinition->SetTooltip(L"tip");
        opEdit = MakeOwner<QtLineEdit>(std::move(opDefinition), &parent);
        parent.show();
    }

    HostFixture host;
    QWidget parent;
    LineEditDefinition* pDefinition;
    OwnerPtr<QtLineEdit> opEdit;
};

}
