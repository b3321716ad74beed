#pragma once

#include <QAction>
#include <QGuiApplication>
#include <QList>
#include <QMouseEvent>
#include <QPoint>
#include <QPointF>
#include <QVariant>
#include <QWidget>

namespace vesk
{

// What Qt 5 and Qt 6 call by different names, under one.

#if QT_VERSION_MAJOR == 5
/// What a reader of QMimeData would like to get.
using MimeDataType = QVariant::Type;
#else
using MimeDataType = QMetaType;
#endif

/// Lets the windows of a program grow with the scale of their screen, by whole factors. To be
/// called before there is an application object.
inline void ScaleWithScreens()
{
#if QT_VERSION_MAJOR == 5
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
    // Qt 6 would not round, nor keep the size of texts where it rounds up: Qt 5 does both.
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(
        Qt::HighDpiScaleFactorRoundingPolicy::Round);
    constexpr char TextPolicy[] = "QT_DPI_ADJUSTMENT_POLICY";
    if (qEnvironmentVariableIsEmpty(TextPolicy))
        qputenv(TextPolicy, "AdjustUpOnly");
}

/// Keeps Qt 5 from closing the windows when the desktop's session ends; Qt 6 never does.
inline void KeepWindowsAtSessionEnd()
{
#if QT_VERSION_MAJOR == 5
    QGuiApplication::setFallbackSessionManagementEnabled(false);
#endif
}

/// Where the mouse is in the widget that gets the event, in parts of a pixel.
inline QPointF PositionOf(const QMouseEvent& event)
{
#if QT_VERSION_MAJOR == 5
    return event.localPos();
#else
    return event.position();
#endif
}

/// Where it is on the screens.
inline QPoint GlobalPositionOf(const QMouseEvent& event)
{
#if QT_VERSION_MAJOR == 5
    return event.globalPos();
#else
    return event.globalPosition().toPoint();
#endif
}

/// The widgets that an action was added to.
inline QList<QWidget*> WidgetsOf(const QAction& action)
{
#if QT_VERSION_MAJOR == 5
    return action.associatedWidgets();
#else
    QList<QWidget*> widgets;
    for (QObject* pObject : action.associatedObjects())
    {
        if (pObject->isWidgetType())
            widgets.append(static_cast<QWidget*>(pObject));
    }
    return widgets;
#endif
}

/// The nearest parent of an action that is a widget; null if none is.
inline QWidget* ParentWidgetOf(const QAction& action)
{
    QObject* pParent = action.parent();
    while (pParent != nullptr && !pParent->isWidgetType())
        pParent = pParent->parent();
    return static_cast<QWidget*>(pParent);
}

}
