#pragma once

#include "HostUi/HostUiExport.h"

#include <QMessageBox>

namespace vesk
{

/// Makes a message box without buttons that shows both texts as they are: names and messages that
/// come from files may look like markup, and setTextFormat is not for the details. The caller owns
/// the box, and so does its parent.
VESK_HOST_UI_API QMessageBox* MakePlainMessageBox(QWidget* pParent, QMessageBox::Icon icon,
                                                  const QString& title, const QString& text,
                                                  const QString& details);

}
