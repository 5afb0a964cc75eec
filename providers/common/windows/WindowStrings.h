// Texts of the windows that every provider can show.
#pragma once

#include "host/Text.h"

// All windows
constexpr TResString sClose{"Close"};

// Differences
constexpr TResString sDiffTitle{"Differences: %s"};
constexpr TResString sPreviousDifference{"&Previous"};
constexpr TResString sNextDifference{"&Next"};
constexpr TResString sPreviousHint{"Go to the previous difference (Shift+F8 or Alt+Up)"};
constexpr TResString sNextHint{"Go to the next difference (F8 or Alt+Down)"};
constexpr TResString sIgnoreCase{"Ignore &case"};
constexpr TResString sIgnoreSpace{"Ignore white &space"};
constexpr TResString sNoDifferences{"There are no differences."};
constexpr TResString sNoneWithOptions{"There are no differences other than those ignored."};
constexpr TResString sOneDifference{"There is one difference."};
constexpr TResString sDifferences{"There are %d differences."};
constexpr TResString sDifferenceOf{"Difference %d of %d."};
constexpr TResString sOnlyEnds{"Only the line ends differ."};
constexpr TResString sEndsDiffer{"The line ends differ, too."};
constexpr TResString sLeftUnended{"The last line on the left has no line end."};
constexpr TResString sRightUnended{"The last line on the right has no line end."};
constexpr TResString sBinaryDiffer{
    "The files are not text, and they differ: %d bytes on the left, %d bytes on the right."};
constexpr TResString sBinarySame{"The files are not text. There are no differences."};

// History
constexpr TResString sNoText{"This is no text: %d bytes."};
