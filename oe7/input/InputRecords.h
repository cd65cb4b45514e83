// The records of the engine's input file by subject, in the order of the file. Each begins behind the last
// line of the one before, and ends with its own last line. Errors are CInputError with the line.
#pragma once

#include "oe7/input/CInput.h"
#include "oe7/input/CRecordReader.h"
#include "oe7/input/CRunLog.h"

#include <filesystem>

namespace oe7
{

/// Title, words, wave frequencies, grid. From its units on the reader gives metres and kilograms.
void ReadControls(CRecordReader& file, CInput& input, CRunLog& log);
/// Spectrum, sea directions, seaways; the file of a spectrum, relative to the folder.
void ReadSea(CRecordReader& file, CInput& input, const std::filesystem::path& folder);
/// Speeds, main dimensions, roll data.
void ReadShip(CRecordReader& file, CInput& input, CRunLog& log);
/// Stations and the loading condition.
void ReadHull(CRecordReader& file, CInput& input);
void ReadMasses(CRecordReader& file, CInput& input);
void ReadPositions(CRecordReader& file, CInput& input);
/// Bilge keels and skeg.
void ReadKeels(CRecordReader& file, CInput& input);
/// Rudder and foils; the rudder's gain file, in the folder.
void ReadFoils(CRecordReader& file, CInput& input, const std::filesystem::path& folder);
/// Fins or tank; the fins' gain file, in the folder.
void ReadStabilizer(CRecordReader& file, CInput& input, const std::filesystem::path& folder);

/// Station, root, span and chords of a blade, and its lift slope. What follows differs.
CFoil ReadBlade(CRecordReader& file);
/// The pairs of foils or fins behind their count.
std::vector<CFoil> ReadPairs(CRecordReader& file, std::string_view what);
/// Acceleration, velocity, motion; each is multiplied by the factor. A gain that is "none" is 0.
CGains ReadGains(CRecordReader& file, std::string_view what, double factor = 1);

} // namespace oe7
