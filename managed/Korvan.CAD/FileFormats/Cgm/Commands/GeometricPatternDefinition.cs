using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>A pattern that is drawn by a segment.</summary>
public sealed class GeometricPatternDefinition : Command
{
    /// <summary>Creates the element with its defaults.</summary>
    public GeometricPatternDefinition()
        : base(ClassCode.PictureDescriptorElement, (int)PictureDescriptorElement.GeometricPatternDefinition)
    {
    }

    /// <summary>Gets or sets the index that areas call the pattern by, from 1.</summary>
    public int PatternIndex { get; set; } = 1;

    /// <summary>Gets or sets the name of the segment.</summary>
    public int SegmentIdentifier { get; set; }

    /// <summary>Gets or sets a corner of the part of the segment that is one piece of the pattern.</summary>
    public CgmPoint FirstCorner { get; set; } = new();

    /// <summary>Gets or sets the corner opposite to it.</summary>
    public CgmPoint SecondCorner { get; set; } = new(1, 1);

    internal override void Exchange(ParameterExchange x)
    {
        PatternIndex = x.Index(PatternIndex);
        SegmentIdentifier = x.Name(SegmentIdentifier);
        FirstCorner = x.Point(FirstCorner);
        SecondCorner = x.Point(SecondCorner);
    }
}
