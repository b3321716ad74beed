#pragma once

#include <cstdint>

class QWidget;

namespace vesk
{

class IUiView;

/// The view the user is working in; null if there is none, or no view manager.
IUiView* FindCurrentView();

/// The host's view with that id; null if there is none, or it no longer exists.
IUiView* FindViewById(std::uint32_t id);

/// That view's widget; null if there is none.
QWidget* FindViewWidget(std::uint32_t id);

}
