#include "oe7/input/InputFile.h"
#include "oe7/output/ListingParts.h"

namespace oe7
{
namespace
{
constexpr int kLabelWidth = 22;
constexpr int kMethodWidth = 10;
constexpr int kCaptionWidth = 41;

bool HasSlamming(const CPosition& position)
{
    return position.Event == EWaterEvent::SlamForm || position.Event == EWaterEvent::SlamOffset ||
           position.Event == EWaterEvent::SlamWedge;
}

void ListRows(CListing& listing)
{
    const std::vector<CPosition>& positions = listing.Input.Positions;
    const CUnit& length = listing.Units.Length;
    for (std::size_t i = 0; i < positions.size(); ++i)
    {
        const CPositionGeometry geometry =
            PositionGeometry(listing.Input, listing.Results.Hull, positions[i], 0);
        listing.Text.Add("   ")
            .Left(listing.Label(i), kLabelWidth)
            .Number(positions[i].Station, 7, 3)
            .Number(length.Of(geometry.X), 12, 4)
            .Number(length.Of(positions[i].Y), 11, 4)
            .Number(length.Of(positions[i].Height), 11, 4)
            .Number(length.Of(geometry.Z), 11, 4)
            .Add("  |")
            .Number(length.Of(geometry.Draft), 10, 4)
            .Add("  |")
            .Number(length.Of(geometry.Freeboard), 11, 4)
            .End();
    }
}

void ListTable(CListing& listing)
{
    CListingText& text = listing.Text;
    const std::string unit = listing.Units.Length.InBrackets();
    text.Line(
        "   Label                 Station           X          Y       Z-BL       Z-CG  |     Draft  |  "
        "Freeboard");
    text.Right(unit, 44).Right(unit, 11).Right(unit, 11).Right(unit, 11);
    text.Add("  |").Right(unit, 10).Add("  |").Right(unit, 11).End();
    text.Add("   ").Line(std::string(101, '-'));
    ListRows(listing);
}

void ListSlamForms(CListing& listing, bool byOffsets)
{
    const std::vector<CPosition>& positions = listing.Input.Positions;
    for (std::size_t i = 0; i < positions.size(); ++i)
    {
        if (!HasSlamming(positions[i]) || (positions[i].Event == EWaterEvent::SlamOffset) != byOffsets)
        {
            continue;
        }
        const CSlamForm& form = listing.Results.SlamForms[i];
        listing.Text.Add("   ")
            .Left(listing.Label(i), kLabelWidth)
            .Number(positions[i].Station, 7, 3)
            .Add("   ")
            .Left(EventWord(positions[i].Event), kMethodWidth)
            .Number(form.FormFactor, 15, 5)
            .Number(listing.Units.Length.Of(form.Width), 18, 5)
            .End();
    }
}
} // namespace

void ListPositions(CListing& listing)
{
    const CInput& input = listing.Input;
    CListingText& text = listing.Text;
    text.Line(" POSITIONS FOR SEAKEEPING CALCULATIONS");
    text.EmptyLine();
    ListTable(listing);
    text.EmptyLine();
    text.Line("   X and Z-CG from the centre of gravity, Z-BL from the baseline");
    text.EmptyLine();
    text.Add("   ")
        .Left("Duration of operation (hours)", kCaptionWidth)
        .Add(":")
        .Number(input.Hours, 11, 4)
        .End();
    text.Add("   ")
        .Left("Slamming exceedence parameter", kCaptionWidth)
        .Add(":")
        .Number(input.Exceedance, 11, 5)
        .End();
    // Nine lines lie between these and the first row: a reader counts.
    text.EmptyLine();
    text.Line("   SLAM PRESSURE");
    text.EmptyLine();
    text.Line("   Pressure = form factor x 1/2 x density x (relative velocity)**2");
    text.Line("   Force per unit length = effective width x pressure");
    text.EmptyLine();
    text.Line("   Position              Station   Method        Form factor   Effective width");
    text.Right(listing.Units.Length.InBrackets(), 78).End();
    text.Add("   ").Line(std::string(75, '-'));
    // A reader takes the rows of forms and wedges only, one after the other.
    ListSlamForms(listing, false);
    ListSlamForms(listing, true);
    text.EmptyLine();
}

} // namespace oe7
