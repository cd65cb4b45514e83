// What completion and the readers both know of the calculated section's layout.
#pragma once

/// Words that tell whether a block follows.
constexpr int kTagData = 26;
constexpr int kTagNoData = 27;

/// Columns of a breakdown table in front of the appendages: wave frequency, encounter frequency, roll angle.
constexpr int kBreakdownColumns = 3;

/// Spectra with sea directions of their own have fixed counts of headings behind the data per frequency: one
/// until the first loads of a speed, another from them on.
constexpr int kHeadingsBeforeLoads = 13;
constexpr int kHeadingsFromLoadsOn = 24;
