#pragma once

#include <cstdint>

class QWidget;

namespace vesk
{

class IUiView;

/// The view the user works in; null when there is none, or no manager of views.
IUiView* FindCurrentView();

/// The host's view of an id; null when there is none, or none any more.
IUiView* FindViewById(std::uint32_t id);

/// Its widget; null when there is none.
QWidget* FindViewWidget(std::uint32_t id);

}
