// An input echo whose parts a test can replace one by one. The rest is the echo of a project at its defaults,
// written down here once more, apart from the code that is tested.
#pragma once

#include "tests/core/results/CEchoBytes.h"

struct CEcho
{
    CEchoBytes Control = CEchoBytes()
                             .Floats({1, 1, 0, 1, 1, 2, 1}) // INSYS .. EXCITE
                             .Floats({-1})                  // NSEADIR, which no reader takes
                             .Floats({1, 0})                // LOADFLAG, RAWFLAG
                             .Floats({0.2F, 2.0F, 0.1F})    // wave frequencies
                             .Floats({1, 0, 4, 1})          // ADDMASS .. LOWHVCOR
                             .Floats({-1, -1, -1});         // encounter frequencies
    CEchoBytes Sea =
        CEchoBytes().Floats({-1}).Floats({-1, -1}).Floats({-1}); // SPECTRUM; NSEADIR, SPREADANG; NSEAWAY
    CEchoBytes Speeds = CEchoBytes().Floats({-1});
    CEchoBytes Ship = CEchoBytes().Floats({-1, -1, -1}).Floats({2, 0}).Floats({-1}); // computed GM, ROLLNF
    CEchoBytes Stations =
        CEchoBytes().Floats({0, -1}).Floats({-1, 1, 1});        // HULLDEF, NST; NST, BEAMSF, DRAFTSF
    CEchoBytes Trim = CEchoBytes().Floats({0}).Floats({-1, 0}); // TRIMDEF; DRAFTMID, TRIMST
    CEchoBytes Masses;
    CEchoBytes Positions = CEchoBytes().Floats({-2}).Floats({20, 0.01F}); // NPOS of -1; SLAMHOUR, SLAMEX
    CEchoBytes Keels = CEchoBytes().Floats({-1}).Floats({-1, -1, -1});    // NBKPAIR; the skeg
    CEchoBytes Rudder = CEchoBytes()
                            .Floats({-1, -1, -1, -1, -1, -1, 0, -1})
                            .Integers({23})
                            .Floats({-90})
                            .Integers({5})
                            .Text("")
                            .Floats({-111111, -111111, -111111, -1, -1, -1, -1})
                            .Floats({-111111, -111111, -111111});
    CEchoBytes Lateral = CEchoBytes().Integers({0}).Floats({-111111, -111111, -111111}).Floats({-1, -1});
    CEchoBytes Foils = CEchoBytes().Floats({0});
    CEchoBytes Stabilizers = CEchoBytes().Floats({0}).Integers({5}).Text("");
    CEchoBytes Last = CEchoBytes()
                          .Integers({0, 1}) // RudderRollStabilization, WarnMassLimit
                          .Integers({0, 0, 0, 0})
                          .Integers({0, 0, 0, 0});
    /// The unit words from the first to the sixty-sixth.
    int Words[66] = {};

    std::string Bytes() const { return Joined(true); }
    /// As files of the earlier form have it.
    std::string WithoutMagic() const { return Joined(false); }

private:
    std::string Joined(bool magic) const
    {
        CEchoBytes all;
        for (const CEchoBytes* part : {&Control, &Sea, &Speeds, &Ship, &Stations, &Trim, &Masses, &Positions,
                                       &Keels, &Rudder, &Lateral, &Foils, &Stabilizers, &Last})
        {
            if (magic || part != &Lateral)
            {
                all.Add(*part);
            }
        }
        for (int k = 0; k < 66; ++k)
        {
            const bool isLateral = k >= 46 && k < 50;
            if (magic || !isLateral)
            {
                all.Integers({Words[k]});
            }
        }
        return all.Bytes();
    }
};
