using System;
using Korvan.CAD.FileFormats.Cad.CadTables;

namespace Korvan.CAD.FileFormats.Cad.Model.Dimensions;

/// <summary>The dimension style of one dimension: that of its name with the changes that it has of its own.</summary>
/// <param name="Values">The variables.</param>
/// <param name="Scale">The factor on all sizes.</param>
internal sealed record DimensionStyle(CadDimensionStyleTable Values, double Scale)
{
    internal string TextStyle { get; init; } = "STANDARD";

    /// <summary>Gets the height of texts, which that of their style comes before.</summary>
    internal double TextHeight { get; init; }

    internal DimensionArrow FirstArrow { get; init; } = DimensionArrow.ClosedFilled;

    internal DimensionArrow SecondArrow { get; init; } = DimensionArrow.ClosedFilled;

    internal DimensionArrow LeaderArrow { get; init; } = DimensionArrow.ClosedFilled;

    internal string LineType { get; init; } = ByBlock;

    internal string FirstExtensionType { get; init; } = ByBlock;

    internal string SecondExtensionType { get; init; } = ByBlock;

    internal double ArrowSize => Math.Max(0, Values.Dimasz) * Scale;

    internal double TickSize => Math.Max(0, Values.Dimtsz) * Scale;

    internal double Gap => Math.Abs(Values.Dimgap) * Scale;

    /// <summary>Gets whether a frame is drawn around the text.</summary>
    internal bool HasFrame => Values.Dimgap < 0;

    internal char Separator => Values.Dimdsep is > 32 and < 127 ? (char)Values.Dimdsep : '.';

    // Drawings of releases 13 and 14 have the notation in a variable of theirs, where 4 and 5 are stacked.
    internal LengthUnit LengthUnit => Values.Dimlunit != Default.Dimlunit || Values.Dimunit == Default.Dimunit
        ? (LengthUnit)Values.Dimlunit
        : (LengthUnit)(Values.Dimunit switch { 6 => 4, 7 => 5, 8 => 6, var unit => unit });

    internal const string ByBlock = "BYBLOCK";

    private static readonly CadDimensionStyleTable Default = new();
}
