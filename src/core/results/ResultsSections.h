// The sections of a results file one by one, for those that don't need all of it.
#pragma once

#include "core/results/CResults.h"
#include "core/results/CResultsCursor.h"

#include <string_view>

constexpr std::size_t kBodyOffset = 248; ///< where the tables of the engine begin
constexpr int kTitleWidth = 80;          ///< of the project's title in front of section B
constexpr int kFileNameWidth = 255;      ///< of each of the two file names in front of section A
constexpr std::string_view kResultsMagic = "OD7b";

/// Whether section C, which begins at the cursor, is of the current form. The cursor stays if it isn't.
bool TakeMagic(CResultsCursor& cursor);

/// The words in front. Throws CResultsError, as all of these.
CResultsHead ReadHead(std::string_view bytes);

/// The tables of the engine up to the first speed's block, where the cursor then stands; it stands at the
/// body's begin before.
CResultsBody ReadBodyTables(CResultsCursor& cursor, const CResultsHead& head);

/// Reads the blocks of the speeds of section C into the body's held arrays. The cursor stands at the first.
void ReadSpeedBlocks(CResultsCursor& cursor, const CResultsHead& head, const CControlSection& control,
                     CResultsBody& body);

/// Section C, which begins at the cursor.
CControlSection ReadControlSection(CResultsCursor& cursor);

/// The head of section A, which begins at the cursor; the cursor then stands at its speed blocks.
CCalculatedHead ReadCalculatedHead(CResultsCursor& cursor, const CResultsHead& head,
                                   const CControlSection& control, int positionCount);
