using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>What a protection region does to later drawing.</summary>
public sealed class ProtectionRegionIndicator : Command
{
    /// <summary>Creates the element with its defaults.</summary>
    public ProtectionRegionIndicator()
        : base(ClassCode.ControlElement, (int)ControlElement.ProtectionRegionIndicator)
    {
    }

    /// <summary>Gets or sets the index of the region, from 1.</summary>
    public int RegionIndex { get; set; } = 1;

    /// <summary>Gets or sets 1 for nothing, 2 to cut drawing at its border, 3 to keep drawing out.</summary>
    public int Indicator { get; set; } = 1;

    internal override void Exchange(ParameterExchange x)
    {
        RegionIndex = x.Index(RegionIndex);
        Indicator = x.Index(Indicator);
    }
}
