#pragma once

#include "SittingWatch.h"

#include <QPointF>
#include <QSize>
#include <QString>
#include <QStringList>

#include <functional>
#include <iterator>
#include <random>
#include <vector>

class ScriptedUser;

/// A user who draws, and who does anything at any moment. The seed determines all of it in advance.
class RandomUser final
{
public:
    /// User and watch are not owned and must outlive the sitting.
    RandomUser(unsigned seed, ScriptedUser& user, SittingWatch& watch);

    /// Plans the acts of a sitting: 30 to 60, or a few more.
    void Plan();

    /// Plans that many acts, or a few more.
    void Plan(int count);

    /// The commands that are started in at least some sittings.
    static QStringList AllCommands();

private:
    using Act = SittingWatch::Act;

    /// Complete tasks in the program, carried out more or less well.
    void DoSomething();
    void Draw();
    void Modify();
    void UndoAndRedo();
    void UseClipboard();
    void UseLayers();
    void ClickLayer(const char* button);
    void NameDrawing();
    void ClearIfCrowded();
    void Erase();
    void Select();
    void SelectAll();
    void EditProperty();
    void Arrange();

    /// A single act of any kind, wherever it hits.
    void Fidget();
    void FidgetSometimes();

    void ClickView();
    void ClickAt(const QPointF& place);
    void ClickPoints(int count);
    void MoveMouse();
    void DragAnywhere();
    void DragBetween(const QPointF& start, const QPointF& end);
    void Zoom();
    void ResizeWindow(const QSize& size);
    void ChooseEntry(const QString& menu, const QString& command);
    void BeginTool(int tool);
    void ClickButton(const QString& id, Act act = Act::Button);
    void ChangeSetting();
    void ClickRow();
    void EnterProperty(const QString& text);
    void EnterValues();
    void TypeValue();
    void CloseEditor();
    void PressCommittingKey();
    void PressAnyKey();
    void Press(const QString& name, Qt::Key key, Qt::KeyboardModifiers modifiers = {},
               Act act = Act::Key);
    void Type(const QString& text);

    /// Acts until the end of a burst arrive so fast that all of them are in the event queue before
    /// the first one is handled.
    void BeginBurst();
    void EndBurst();

    void Do(const QString& name, Act act, std::function<void()> work);
    void Note(std::function<void()> step);
    int Choose(int count);
    bool IsOneIn(int count) { return Choose(count) == 0; }
    QPointF Place();

    template <class Table>
    auto Pick(const Table& table)
    {
        return table[static_cast<std::size_t>(Choose(static_cast<int>(std::size(table))))];
    }

    std::mt19937 m_random;
    ScriptedUser& m_user;
    SittingWatch& m_watch;
    int m_noted = 0;
    std::vector<QPointF> m_clicked;

    /// The acts of the burst being planned.
    std::vector<std::function<void()>> m_burst;
    bool m_isBurst = false;
};
