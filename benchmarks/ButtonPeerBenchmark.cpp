// Whether a ribbon of buttons comes up sooner than the tool bar that people would take instead. In
// a program of its own, because the libraries of the tool bar slow down every event.

#include "Buttons.h"
#include "Harness/Question.h"

#include <KActionCollection>
#include <KToolBar>

using namespace vesk;

void AskQuestions()
{
    const auto pIcons = std::make_shared<const IconFiles>(64);
    Ask("P1 construct 1,000 buttons, 64 icon files")
        .Ours([pIcons](Stopwatch& stopwatch) {
            QWidget parent;
            auto definitions = MakeDefinitions(*pIcons);
            std::vector<OwnerPtr<QtButton>> buttons;
            stopwatch.Time([&] { buttons = Construct(definitions, parent); });
        })
        .Limit([pIcons](Stopwatch& stopwatch) {
            QWidget parent;
            auto all = MakeData(*pIcons);
            std::vector<std::unique_ptr<PlainButton>> buttons;
            stopwatch.Time([&] { buttons = ConstructPlain(all, parent); });
        })
        .Peer("KActionCollection and KToolBar",
              [pIcons](Stopwatch& stopwatch) {
                  QWidget parent;
                  const auto all = MakeData(*pIcons);
                  KToolBar bar(&parent, false, false);
                  KActionCollection collection(&parent);
                  stopwatch.Time([&] {
                      for (const Data& data : all)
                      {
                          QAction* pAction = collection.addAction(data.id);
                          pAction->setIcon(QIcon(data.icon));
                          pAction->setText(data.caption);
                          pAction->setToolTip(data.tip);
                          pAction->setCheckable(true);
                          bar.addAction(pAction);
                      }
                  });
              })
        .TimeAtMost(0.28)
        .AheadOfPeer(5);
}
