#pragma once

#include "Documents/DocumentCommands.h"
#include "Documents/Documents.h"
#include "Model/DocumentFile.h"
#include "Model/KeptContent.h"
#include "Model/SampleContent.h"
#include "Model/Sketch.h"
#include "Ribbon/CommandTable.h"
#include "Support/DialogUser.h"
#include "Support/FileBytes.h"
#include "Support/JournalRecorder.h"
#include "Support/MovedUserFolders.h"
#include "Support/TestValues.h"
#include "Support/WarningRecorder.h"

#include "Command/ActionManager.h"
#include "HostCore.h"
#include "HostUi/MainWindow.h"
#include "HostUi/UiApplication.h"
#include "Journal/JournalFormat.h"
#include "Journal/JournalManager.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

#include <map>
#include <memory>

/// A window with a drawing and its document, and a user who answers the dialogs.
struct DocumentsFixture
{
    explicit DocumentsFixture(Documents::Manners manners = Documents::Manners::Ask)
    {
        KeptContent::Get().Forget();
        Make(manners);
    }

    void Make(Documents::Manners manners)
    {
        pDocuments = std::make_unique<Documents>(sketch, *pWindow, manners,
                                                 [this](const Documents::Work& work) {
                                                     ++workCount;
                                                     work(progress);
                                                 });
        RegisterCommands(MakeDocumentCommands(*pDocuments));
    }

    static void Run(const wchar_t* commandId) { vesk::ActionManager::RunCommand(commandId, {}); }

    QString File(const QString& name) const { return folder.filePath(name); }

    /// A file with a drawing.
    QString MakeFile(const QString& name, const SketchContent& content = MakeSampleContent()) const
    {
        const bool isWritten =
            vesk::WriteBytes(File(name), QByteArray::fromStdString(DocumentFile::ToText(content)));
        return isWritten ? File(name) : QString();
    }

    /// Opens a file of that name, in this folder or one within it, with the sample drawing.
    bool OpenSample(const QString& name = "sample.vsk") const
    {
        return QDir().mkpath(QFileInfo(File(name)).path()) && pDocuments->OpenFile(MakeFile(name));
    }

    /// The end of the command that saved last, as it is in the journal.
    static vesk::EndRecord EndOfSaving()
    {
        std::map<int, vesk::EndRecord> ends;
        int saving = 0;
        for (const std::string& line : vesk::JournalManager::GetInstance().GetLastLines())
        {
            vesk::JournalRecord record;
            std::string error;
            vesk::JournalFormat::FromLine(line, record, error);
            const auto* pCommand = std::get_if<vesk::CommandRecord>(&record.what);
            if (pCommand != nullptr && pCommand->commandId == Documents::SaveId)
                saving = record.number;
            if (const auto* pEnd = std::get_if<vesk::EndRecord>(&record.what))
                ends[record.number] = *pEnd;
        }
        if (ends.count(saving) == 0)
            QTest::qFail("the saving has no end", __FILE__, __LINE__);
        return ends[saving];
    }

    void Draw() { sketch.AddLine({0, 0, 0}, {10, 0, 0}); }

    QTemporaryDir folder;
    vesk::test::MovedUserFolders userFolders{folder.path()};
    vesk::test::WarningRecorder warnings;
    vesk::HostCore core;
    vesk::UiApplication application;
    vesk::test::JournalRecorder journal;
    Sketch sketch;
    std::unique_ptr<vesk::MainWindow> pWindow = std::make_unique<vesk::MainWindow>();
    std::unique_ptr<Documents> pDocuments;
    vesk::test::DialogUser user;
    DocumentFile::Progress progress;
    int workCount = 0;
};
