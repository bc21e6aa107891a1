using System;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>A rectangle that the extents of all pictures lie in.</summary>
public sealed class MaximumVdcExtent : Command
{
    /// <summary>Creates the element with its defaults.</summary>
    public MaximumVdcExtent()
        : base(ClassCode.MetaFileDescriptorElement, (int)MetaFileDescriptorElement.MaximumVdcExtent)
    {
    }

    /// <summary>Creates the element with its parameters.</summary>
    /// <param name="firstCorner">The lower left corner, as the picture is seen.</param>
    /// <param name="secondCorner">The upper right corner.</param>
    public MaximumVdcExtent(CgmPoint firstCorner, CgmPoint secondCorner)
        : this()
    {
        Verify.NotNull(firstCorner);
        Verify.NotNull(secondCorner);
        FirstCorner = firstCorner;
        SecondCorner = secondCorner;
    }

    /// <summary>Gets or sets the lower left corner, as the picture is seen.</summary>
    public CgmPoint FirstCorner { get; set; } = new();

    /// <summary>Gets or sets the upper right corner.</summary>
    public CgmPoint SecondCorner { get; set; } = new(32767, 32767);

    internal override void Exchange(ParameterExchange x)
    {
        FirstCorner = x.Point(FirstCorner);
        SecondCorner = x.Point(SecondCorner);
    }
}
