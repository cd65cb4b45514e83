// Topic numbers of the help pages.
#pragma once

enum EHelpTopic
{
    kHelpContents = 1,
    kHelpDescription = 100,
    kHelpUnits = 110,
    kHelpHullGeometry = 200,
    kHelpOffsets = 210,
    kHelpSectionAreas = 215,
    kHelpParticulars = 220,
    kHelpSkeg = 310,
    kHelpDisplayResults = 800
};
