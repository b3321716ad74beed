#include "Support/Platform/Debugger.h"

#include <QDir>
#include <QTemporaryDir>

#include <windows.h>

namespace vesk::test
{
namespace
{

/// A program that this process debugs, and its output.
class DebuggedProcess
{
public:
    DebuggedProcess(const QString& program, const QStringList& arguments, const QByteArray& mark)
        : m_mark(mark), m_output(m_folder.filePath("output"))
    {
        Start('"' + program + "\" " + arguments.join(' '));
        m_output.open(QIODevice::ReadOnly);
    }

    ~DebuggedProcess()
    {
        if (m_isRunning)
            TerminateProcess(m_process.hProcess, 1);
        if (m_process.hProcess != nullptr)
        {
            CloseHandle(m_process.hThread);
            CloseHandle(m_process.hProcess);
        }
    }

    DebuggedProcess(const DebuggedProcess&) = delete;
    DebuggedProcess& operator=(const DebuggedProcess&) = delete;

    /// Waits for the next event and resumes the process; false once there are no more events.
    bool HandleEvent()
    {
        constexpr DWORD patience = 60000;
        DEBUG_EVENT event;
        if (!m_isRunning || !WaitForDebugEvent(&event, patience))
            return false;
        NoteOutput();
        const bool isHandled = Note(event);
        ContinueDebugEvent(event.dwProcessId, event.dwThreadId,
                           isHandled ? DBG_CONTINUE : DBG_EXCEPTION_NOT_HANDLED);
        return true;
    }

    QStringList GetEvents() const { return m_events; }

private:
    void Start(const QString& commandLine)
    {
        SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
        const std::wstring path = QDir::toNativeSeparators(m_output.fileName()).toStdWString();
        HANDLE output = CreateFileW(path.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                    &inherited, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
        STARTUPINFOW startup{};
        startup.cb = sizeof startup;
        startup.dwFlags = STARTF_USESTDHANDLES;
        startup.hStdOutput = output;
        std::wstring line = commandLine.toStdWString();
        m_isRunning =
            CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, DEBUG_ONLY_THIS_PROCESS,
                           nullptr, nullptr, &startup, &m_process) != FALSE;
        CloseHandle(output);
    }

    void NoteOutput()
    {
        for (const QByteArray& line : m_output.readAll().split('\n'))
        {
            if (line.startsWith(m_mark))
                m_events << QString::fromUtf8(line.trimmed());
        }
    }

    /// True unless the event is left to the process.
    bool Note(const DEBUG_EVENT& event)
    {
        if (event.dwDebugEventCode == EXIT_PROCESS_DEBUG_EVENT)
        {
            m_isRunning = false;
            if (event.u.ExitProcess.dwExitCode == 0)
                m_events << "exit";
        }
        if (event.dwDebugEventCode != EXCEPTION_DEBUG_EVENT)
            return true;
        if (event.u.Exception.ExceptionRecord.ExceptionCode != EXCEPTION_BREAKPOINT)
            return false;
        // The first break is the system's, before the program starts.
        if (m_hasBegun)
            m_events << "break";
        m_hasBegun = true;
        return true;
    }

    QByteArray m_mark;
    QTemporaryDir m_folder;
    QFile m_output;
    PROCESS_INFORMATION m_process{};
    QStringList m_events;
    bool m_isRunning = false;
    bool m_hasBegun = false;
};

}

QStringList RunInDebugger(const QString& program, const QStringList& arguments,
                          const QByteArray& mark)
{
    DebuggedProcess process(program, arguments, mark);
    while (process.HandleEvent())
    {}
    return process.GetEvents();
}

}
