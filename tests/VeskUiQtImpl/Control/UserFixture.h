#pragma once

#include "Control/EchoModes.h"
#include "Control/LineEditDefinitions.h"
#include "Support/HostFixture.h"
#include "Support/TestValues.h"
#include "VeskUiQtImpl/Control/QtLineEdit.h"

namespace vesk::test
{

/// A shown line edit; its definition raises its event for user changes, or does not.
struct UserFixture
{
    explicit UserFixture(const std::wstring& text = L"", bool isEchoing = true)
    {
        auto opDefinition = MakeDefinition<NotingLineEditDefinition>(isEchoing, L"Edit.Id");
        pDefinition = opDefinition.Get();
        pDefinition->SetText(text);
        pDefinition->writes.clear();
        opEdit = MakeOwner<QtLineEdit>(std::move(opDefinition), &parent);
        parent.show();
    }

    HostFixture host;
    QWidget parent;
    NotingLineEditDefinition* pDefinition;
    OwnerPtr<QtLineEdit> opEdit;
};

}
