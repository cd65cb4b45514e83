// What the user gave for the spectra of two wave systems.
#pragma once

#include "core/results/report/CReport.h"

/// The input table of an Ochi & Hubble or a ten-parameter spectrum, on a page of its own. Nothing for any
/// other spectrum.
void WaveInputTables(CReport& report);
