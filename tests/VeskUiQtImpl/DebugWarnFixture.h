#pragma once

#include "VeskUiQtImpl/DebugWarnDialog.h"

#include "Foundation/IPublishConfig.h"
#include "Support/HostFixture.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTextEdit>

namespace vesk::test
{

/// A dialog that shows a warning, in in-house mode unless told otherwise.
struct DialogFixture
{
    explicit DialogFixture(bool isPublished = false)
    {
        if (isPublished)
            IPublishConfig::SetConfigRecord(PublishConfigRecordNames::InHouseMode, false);
        dialog.SetInfo("src/文件.cpp", 12, "vesk::F::G", L"pDock是空指针", L"vesk-ui",
                       L"2026-11-21");
    }

    QPushButton& Button(int index) { return *dialog.findChildren<QPushButton*>().at(index); }
    QLineEdit& Line(int index) { return *dialog.findChildren<QLineEdit*>().at(index); }
    QTextEdit& Box(int index) { return *dialog.findChildren<QTextEdit*>().at(index); }

    HostFixture host;
    DebugWarnDialog dialog{nullptr};
};

/// Indexes of the widgets among those of their class.
enum
{
    ReportButton = 0,
    IgnoreButton = 1,
    IgnoreAllButton = 2,
    DebugButton = 3,

    UserName = 0,
    Password = 1,
    LineNumber = 2,
    Person = 3,
    Date = 4,

    Message = 0,
    File = 1,
    Function = 2,
};

}
