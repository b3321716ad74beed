#pragma once

#include <QStringList>

namespace vesk::test
{

/// What handlers asked of Qt and of the host while one of these was there, in order:
/// EditorCalls.cpp defines functions that take precedence over theirs throughout the program that
/// contains it.
class EditorCalls
{
public:
    EditorCalls();
    ~EditorCalls();
    EditorCalls(const EditorCalls&) = delete;
    EditorCalls& operator=(const EditorCalls&) = delete;

    const QStringList& Get() const;

    /// How often the input method was told to query whether it is wanted, with or without an object
    /// of this class.
    static int GetInputMethodUpdateCount();

    /// "what first second".
    static QString Numbers(const char* what, int first, int second);
};

}
