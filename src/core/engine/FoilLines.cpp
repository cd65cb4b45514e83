#include "core/engine/FoilLines.h"

void FoilLines(CEngineInput& input, int pairs, const CFoilFields& fields, const char* incomplete)
{
    const auto lengths = {&fields.RootBreadth, &fields.RootHeight, &fields.Span, &fields.RootChord,
                          &fields.TipChord};
    for (int i = 0; i < pairs; ++i)
    {
        input.Test(IsGiven(fields.Station.Value(i)) && AllGiven(lengths, i) &&
                       IsGiven(fields.Incidence.Value(i), kAngleNotGiven),
                   incomplete);
        input.Line()
            .Value(fields.Station, kPlain2, i)
            .Values(lengths, kLength4, i)
            .ValueOr("0.0", Is(fields.LiftSlopeGiven, 1, i), fields.LiftSlope, kPlain4, i)
            .Value(fields.Incidence, kPlain4, i);
        input.End();
    }
}
