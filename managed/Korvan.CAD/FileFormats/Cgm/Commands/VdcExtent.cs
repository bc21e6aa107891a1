using System;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The part of the plane that is the picture; where the first corner is not the lower left one, an axis runs
/// the other way.</summary>
public sealed class VdcExtent : Command
{
    /// <summary>Creates the default extent of whole numbers, (0, 0) to (32767, 32767).</summary>
    public VdcExtent()
        : base(ClassCode.PictureDescriptorElement, (int)PictureDescriptorElement.VdcExtent)
    {
    }

    /// <summary>Creates the element with its parameters.</summary>
    /// <param name="firstCorner">The corner that is seen at the lower left.</param>
    /// <param name="secondCorner">The corner that is seen at the upper right.</param>
    public VdcExtent(CgmPoint firstCorner, CgmPoint secondCorner)
        : this()
    {
        Verify.NotNull(firstCorner);
        Verify.NotNull(secondCorner);
        FirstCorner = firstCorner;
        SecondCorner = secondCorner;
    }

    /// <summary>Gets or sets the corner that is seen at the lower left.</summary>
    public CgmPoint FirstCorner { get; set; } = new();

    /// <summary>Gets or sets the corner that is seen at the upper right.</summary>
    public CgmPoint SecondCorner { get; set; } = new(32767, 32767);

    /// <inheritdoc/>
    public override string ToString() => $"{Keyword} {FirstCorner} {SecondCorner}";

    internal override void Exchange(ParameterExchange x)
    {
        FirstCorner = x.Point(FirstCorner);
        SecondCorner = x.Point(SecondCorner);
    }
}
