#pragma once

#include "Control/LineEditDefinitions.h"
#include "Control/QtLineEdit.h"
#include "Support/ChangeByUserFilter.h"
#include "Support/HostFixture.h"

#include <QtTest>

namespace vesk::test
{

/// A shown line edit; its definition tells what the user does, or keeps it to itself.
struct UserFixture
{
    explicit UserFixture(const std::wstring& text = L"", bool isEchoing = true)
    {
        OwnerPtr<NotingLineEditDefinition> opDefinition;
        if (isEchoing)
            opDefinition = MakeOwner<NotingLineEditDefinition>(L"Edit.Id");
        else
            opDefinition = MakeOwner<Silent<NotingLineEditDefinition>>(L"Edit.Id");
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

inline void AddEchoModes()
{
    QTest::addColumn<bool>("isEchoing");
    QTest::newRow("echoing definition") << true;
    QTest::newRow("silent definition") << false;
}

}
