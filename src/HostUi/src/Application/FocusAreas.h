#pragma once

#include <QList>
#include <QObject>
#include <QPointer>

class QMainWindow;
class QWidget;

namespace vesk
{

/// F6 takes the keyboard from one area of a window to the next, Shift+F6 back: the drawing, the
/// panes that are shown, from left to right and from top to bottom, and the bar at the top. Each
/// area gets it where it had it last, else at its first widget that takes keys.
class FocusAreas final : public QObject
{
    Q_OBJECT

public:
    /// The window becomes the parent; its central widget is the drawing, its menu widget the bar.
    explicit FocusAreas(QMainWindow& window);

private:
    void AddKey(const QString& key, int step);
    void Go(int step);
    QList<QWidget*> FindAreas() const;
    QWidget* FindTarget(QWidget& area) const;
    void OnFocusChanged(QWidget* pOld, QWidget* pNow);

    QMainWindow& m_window;

    /// Where the areas had the keyboard last.
    QList<QPointer<QWidget>> m_former;
};

}
