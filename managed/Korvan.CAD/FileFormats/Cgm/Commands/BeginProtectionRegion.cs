using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Begins a region that later drawing is clipped to or kept out of.</summary>
public sealed class BeginProtectionRegion : Command
{
    /// <summary>Creates the element with its defaults.</summary>
    public BeginProtectionRegion()
        : base(ClassCode.DelimiterElement, (int)DelimiterElement.BeginProtectionRegion)
    {
    }

    /// <summary>Gets or sets the index of the region, from 1.</summary>
    public int RegionIndex { get; set; } = 1;

    internal override void Exchange(ParameterExchange x) => RegionIndex = x.Index(RegionIndex);
}
