// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <vector>

// How colours, line types, line weights and names of layers are called in DXF files.

/// The colour number of an index into LineColours(); for index 0 the one that is given.
int ColourNumberOf(int colour, int ofDefault);

/// The index of the colour nearest to a colour number, or to a colour of 24 bits unless that is -1.
/// Black and white are the default colour, 0; so are the numbers for "by layer" and "by block".
int NearestColour(int number, int rgb);

/// True if the colour is one that this program writes, or the default colour.
bool IsExactColour(int number, int rgb);

/// The line type of an index into LineStyles().
const char* LineTypeOf(int style);

/// The index of the style that looks like a line type, by its name or, if that is not known, by the
/// lengths of its dashes: positive for a dash, 0 for a dot, negative for a gap.
int NearestStyle(const std::string& lineType, const std::vector<double>& dashes);

/// The names of line types have no case.
std::string InUpperCase(std::string name);

/// The line weight, in hundredths of a millimetre, of an index into LineWidths().
int LineWeightOf(int width);

/// The index of the width nearest to a line weight; that of a new drawing for a weight below 0.
int NearestWidth(int lineWeight);

/// A name in the characters that every program reads: others become \U+ and four hexadecimal
/// digits, and those that the format forbids become underscores.
std::string EncodeName(const std::wstring& name);

/// Undoes EncodeName. Bytes that are not UTF-8 are read in the file's code page, such as ANSI_936.
std::wstring DecodeName(const std::string& bytes, const std::string& codePage);
