#pragma once

class QLabel;
class QString;

/// A label with that object name that tells the user why a value was refused; hidden at first. The
/// caller places it in a layout, whose widget takes ownership.
QLabel* MakeRefusalMessage(const QString& name);
