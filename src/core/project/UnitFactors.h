// The factors between the two unit systems, in single precision as the engine's files have them.
#pragma once

constexpr float kFeetPerMetre = 3.28084F;
constexpr float kMetresPerFoot = 0.3048F;
constexpr float kLongTonsPerTonne = 0.9842065F;
constexpr float kTonnesPerLongTon = 1.0160469F;
constexpr float kKnotsPerMetrePerSecond = 1.9438462F;
constexpr float kMetresPerSecondPerKnot = 0.514444F;
