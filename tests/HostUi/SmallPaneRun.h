#pragma once

#include "HostUi/PaneRun.h"

#include <algorithm>
#include <cstdlib>

namespace vesk::test
{

/// A drawing that needs 400 x 300.
class Centre final : public QWidget
{
public:
    QSize minimumSizeHint() const override { return {400, 300}; }
};

/// A run whose window may be as small as the user likes, at first with room for all panes.
struct SmallRun : Run
{
    SmallRun()
    {
        window.setMinimumSize(100, 100);
        window.setCentralWidget(new Centre);
        pLayout->RestoreDefault();
        Resize(1200, 900);
    }

    void Resize(int width, int height)
    {
        window.resize(width, height);
        SettleAll();
    }

    /// Until the panes are arranged for the window, in as many steps as it takes.
    static void SettleAll()
    {
        for (int i = 0; i < 5; ++i)
            Settle();
    }

    /// The names of the panes that take room in the window.
    QString Docked()
    {
        QString names;
        for (const char* name : {"A", "B", "C", "D", "E", "F"})
        {
            if (!Pane(name)->isHidden() && !Pane(name)->isFloating())
                names += QLatin1String(name);
        }
        return names;
    }

    /// Where those are that are in front when C is.
    QList<QRect> Places()
    {
        QList<QRect> places;
        for (const char* name : {"B", "C", "D", "E", "F"})
            places << Pane(name)->geometry();
        return places;
    }

    QSize CentreSize() const { return window.centralWidget()->size(); }
};

/// The toolkit rounds when panes share the height of their area.
inline bool AreAlike(const QList<QRect>& places, const QList<QRect>& others)
{
    return std::equal(places.begin(), places.end(), others.begin(), others.end(),
                      [](const QRect& place, const QRect& other) {
                          return place.left() == other.left() && place.width() == other.width() &&
                                 std::abs(place.top() - other.top()) <= 1 &&
                                 std::abs(place.height() - other.height()) <= 1;
                      });
}

}
