// The Lewis section: the conformal image of a circle with two parameters (Lewis 1929).
#pragma once

namespace oe7
{

struct CLewisForm
{
    double H0 = 0;    ///< half beam to draft
    double Sigma = 0; ///< area coefficient, limited to what a Lewis section can have
    double A1 = 0;
    double A3 = 0;
    double M = 0; ///< m, scale
};

/// Of a section of a beam (m), draft (m) and area (m2), all positive.
CLewisForm LewisForm(double beam, double draft, double area);

} // namespace oe7
