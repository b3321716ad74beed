#include "HostUi/UiTreeWriter.h"

#include "Inspection/UiTree.h"

#include "Foundation/FileRewriting.h"

#include <QApplication>
#include <QEvent>

#include <chrono>
#include <utility>

namespace vesk
{
namespace
{

constexpr std::chrono::milliseconds LatestDelay{150};

}

UiTreeWriter::UiTreeWriter(const QString& path, const DimensionInputController& input,
                           EntityCount countEntities)
    : m_path(path), m_input(input), m_countEntities(std::move(countEntities))
{
    // A zero timer fires when nothing else is pending.
    m_whenIdle.setInterval(0);
    m_atTheLatest.setInterval(LatestDelay);
    for (const QTimer* pTimer : {&m_whenIdle, &m_atTheLatest})
        connect(pTimer, &QTimer::timeout, this, &UiTreeWriter::Write);
    qApp->installEventFilter(this);
}

UiTreeWriter::~UiTreeWriter() = default;

bool UiTreeWriter::Write()
{
    m_whenIdle.stop();
    m_atTheLatest.stop();
    std::string described = DescribeUi(m_input, m_countEntities());
    if (described == m_written)
        return true;
    if (!RewriteFile(m_path.toStdString(), described))
        return false;
    m_written = std::move(described);
    return true;
}

bool UiTreeWriter::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    // Every change follows some event. The timers run together until Write stops both; their own
    // events find them running.
    if (m_atTheLatest.isActive())
        return false;
    m_whenIdle.start();
    m_atTheLatest.start();
    return QObject::eventFilter(pWatched, pEvent);
}

}
