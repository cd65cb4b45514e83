// A section of the hull below the local waterline.
#pragma once

#include "oe7/hull/Lewis.h"
#include "oe7/input/CInput.h"

#include <vector>

namespace oe7
{

struct CPoint
{
    double Y = 0; ///< m, to port
    double Z = 0; ///< m, up from the local waterline
};

struct CSection
{
    double Waterline = 0;        ///< m above the baseline
    std::vector<CPoint> Contour; ///< port half from the keel up to the waterline; empty: the station is dry
    bool Submerged = false;      ///< the contour closes below the water
    bool Extended = false;       ///< the points ended below the water, the side was carried up to it
    double Area = 0;             ///< m2, both sides
    double CentroidZ = 0;        ///< m from the local waterline
    double Beam = 0;             ///< m at the waterline
    double Draft = 0;            ///< m below the waterline
    double Girth = 0;            ///< m, both sides

    bool Dry() const { return Contour.empty(); }
};

/// The half contour of a Lewis section, port side from the keel up, in equal steps of the circle's angle.
std::vector<CPoint> LewisContour(const CLewisForm& form, double beam, double draft, int steps);

/// Clips a station's offsets at a waterline height (m above the baseline).
CSection ClippedSection(const COffsets& offsets, double waterline);
/// The Lewis section of the dimensions, its local draft (m) given apart; dry if that isn't positive.
CSection FormedSection(const CSectionDimensions& dimensions, double draft, double waterline);

} // namespace oe7
