#pragma once

#include <QString>

/// The page with the program's version and the licences of what it is made of, as HTML.
QString MakeAboutPage();
