// What it costs to notify the subscribers of a change, and to subscribe.

#include "Harness/Question.h"

#include "Control/ControlDefinitionChangeByUser.h"
#include "Control/ControlDefinitionChangeEvent.h"

#include <QAction>
#include <QObject>

#include <algorithm>
#include <exception>
#include <memory>
#include <numeric>
#include <random>
#include <string>
#include <vector>

using namespace vesk;

namespace
{

constexpr int Changes = 100000;
constexpr std::size_t Subscribers = 10000;

using Type = ControlDefinitionChangeEventType;

class Handler final : public IControlDefinitionChangeEventHandler
{
public:
    void On(IControlDefinitionChangeEventArgs* pArgs) override
    {
        m_count += pArgs->GetType() == Type::PropertyChanged;
    }

private:
    int m_count = 0;
};

class PropertyChange final : public IControlDefinitionChangeEventArgs
{
public:
    explicit PropertyChange(bool isByUser) : m_isByUser(isByUser) {}

    int GetType() const override { return Type::PropertyChanged; }
    int GetIndex() const override { return -1; }
    const std::wstring& GetItemCaption() const override { return m_caption; }
    const IControlDefinition* GetItemDefinition() const override { return nullptr; }
    bool IsChangeByUser() const override { return m_isByUser; }

private:
    bool m_isByUser;
    std::wstring m_caption;
};

/// The same written by hand, as far as it cannot be left out: handlers are told whether the user
/// made the change; they may make another, leave, destroy the list, so that each walk along it
/// knows those around it, and throw, which keeps none from being called.
class PlainEvent
{
public:
    explicit PlainEvent(IControlDefinitionChangeEventHandler* pHandler) : m_handlers(1, pHandler) {}

    [[gnu::noinline]] void Raise()
    {
        Walk walk{this, m_pInnermost};
        m_pInnermost = &walk;
        PropertyChange change(ControlDefinitionChangeByUser::IsChangeByUser(m_id));
        std::exception_ptr pFirst;
        for (std::size_t i = 0; walk.pEvent != nullptr && i < m_handlers.size(); ++i)
            Call(m_handlers[i], change, pFirst);
        if (walk.pEvent != nullptr)
            m_pInnermost = walk.pOuter;
        if (walk.pEvent != nullptr && m_pInnermost == nullptr && m_hasHoles)
            CloseHoles();
        if (pFirst != nullptr)
            std::rethrow_exception(pFirst);
    }

    void Delete(const IControlDefinitionChangeEventHandler* pHandler)
    {
        for (auto& pListed : m_handlers)
            pListed = pListed == pHandler ? nullptr : pListed;
        m_hasHoles = true;
    }

private:
    struct Walk
    {
        PlainEvent* pEvent;
        Walk* pOuter;
    };

    static void Call(IControlDefinitionChangeEventHandler* pHandler, PropertyChange& change,
                     std::exception_ptr& pFirst)
    {
        try
        {
            if (pHandler != nullptr)
                pHandler->On(&change);
        }
        catch (...)
        {
            if (pFirst == nullptr)
                pFirst = std::current_exception();
        }
    }

    void CloseHoles()
    {
        m_handlers.erase(std::remove(m_handlers.begin(), m_handlers.end(), nullptr),
                         m_handlers.end());
        m_hasHoles = false;
    }

    std::wstring m_id = L"Definition";
    std::vector<IControlDefinitionChangeEventHandler*> m_handlers;
    Walk* m_pInnermost = nullptr;
    bool m_hasHoles = false;
};

void AskAboutNotifying()
{
    const auto pHandler = std::make_shared<Handler>();
    const auto pEvent = std::make_shared<ControlDefinitionChangeEvent>(L"Definition");
    pEvent->Add(pHandler.get());
    const auto pPlain = std::make_shared<PlainEvent>(pHandler.get());
    Ask("P8 event to one subscriber")
        .Ours([pHandler, pEvent](Stopwatch& stopwatch) {
            stopwatch.Time([&] {
                for (int i = 0; i < Changes; ++i)
                    pEvent->RaisePropertyChanged();
            });
        })
        .Limit([pHandler, pPlain](Stopwatch& stopwatch) {
            stopwatch.Time([&] {
                for (int i = 0; i < Changes; ++i)
                    pPlain->Raise();
            });
        })
        .Peer("signal of Qt",
              [](Stopwatch& stopwatch) {
                  QAction sender;
                  int count = 0;
                  QObject::connect(&sender, &QAction::hovered, [&count] { ++count; });
                  stopwatch.Time([&] {
                      for (int i = 0; i < Changes; ++i)
                          emit sender.hovered();
                  });
              })
        .TimeAtMost(1.2)
        .AheadOfPeer(1)
        .AllocationsAtMost(0);
}

std::vector<std::size_t> InOrder(std::size_t count)
{
    std::vector<std::size_t> order(count);
    std::iota(order.begin(), order.end(), std::size_t{0});
    return order;
}

/// Numbers in an order that is the same in each run.
std::vector<std::size_t> Shuffled(std::size_t count)
{
    std::vector<std::size_t> order = InOrder(count);
    std::shuffle(order.begin(), order.end(), std::mt19937(7));
    return order;
}

void SubscribeAndUnsubscribe(Stopwatch& stopwatch, const std::vector<std::size_t>& order)
{
    std::vector<Handler> handlers(order.size());
    ControlDefinitionChangeEvent event(L"Definition");
    stopwatch.Time([&] {
        for (Handler& handler : handlers)
            event.Add(&handler);
        for (const std::size_t i : order)
            event.Delete(&handlers[i]);
    });
}

void ConnectAndDisconnect(Stopwatch& stopwatch)
{
    QObject sender;
    std::vector<std::unique_ptr<QObject>> receivers;
    for (std::size_t i = 0; i < Subscribers; ++i)
        receivers.push_back(std::make_unique<QObject>());
    std::vector<QMetaObject::Connection> connections(Subscribers);
    const std::vector<std::size_t> order = Shuffled(Subscribers);
    stopwatch.Time([&] {
        for (std::size_t i = 0; i < Subscribers; ++i)
            connections[i] = QObject::connect(&sender, &QObject::objectNameChanged,
                                              receivers[i].get(), &QObject::deleteLater);
        for (const std::size_t i : order)
            QObject::disconnect(connections[i]);
    });
}

}

void AskQuestions()
{
    AskAboutNotifying();
    Ask("P8 10,000 subscribe, and unsubscribe in any order")
        .Ours(
            [](Stopwatch& stopwatch) { SubscribeAndUnsubscribe(stopwatch, Shuffled(Subscribers)); })
        .Limit([](Stopwatch& stopwatch) { ConnectAndDisconnect(stopwatch); })
        .TimeAtMost(1);
    Ask("P8 growth of subscribing and unsubscribing")
        .GrowsAtMost(1.05, {1000, 10000, 100000},
                     [](Stopwatch& stopwatch, long count) {
                         SubscribeAndUnsubscribe(stopwatch,
                                                 InOrder(static_cast<std::size_t>(count)));
                     })
        .WithoutInstructions();
}
