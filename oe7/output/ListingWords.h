// Texts of the user as the listing prints them, so that no reader takes them for one of its marker words.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace oe7
{

/// The words by which a reader finds its way. None is all in lower case.
inline constexpr std::array<std::string_view, 17> kMarkers = {"ENFREQMIN",
                                                              "GMFLAG",
                                                              "GENERAL HULL PARAMETERS",
                                                              "Displacement",
                                                              "Cb",
                                                              "SECTIONAL PROPERTIES",
                                                              "POSITIONS FOR SEAKEEPING CALCULATIONS",
                                                              "Label",
                                                              "SHIP MOTIONS AT CG IN REGULAR WAVES",
                                                              "Enc",
                                                              "Roll natural frequency",
                                                              "LFE",
                                                              "Sickness",
                                                              "Draft",
                                                              "Freeboard",
                                                              "Depth",
                                                              "RMS Sea Loads at Station"};

/// A line of text as it is, or in lower case if it holds a marker word. At most 200 characters.
std::string ListedTitle(std::string_view title);
/// One word in lower case, at most 60 characters: "position-3" if the label of position 3 is empty.
std::string ListedLabel(std::string_view label, int number);

} // namespace oe7
