using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>How coordinates are coded that are real numbers.</summary>
public sealed class VdcRealPrecision : RealPrecisionBase
{
    /// <summary>Creates the element with its default, a fixed point and 32 bits.</summary>
    public VdcRealPrecision()
        : base(ClassCode.ControlElement, (int)ControlElement.VdcRealPrecision)
    {
    }

    internal override void Apply(CodingState state) => state.Current.VdcReal = Value;
}
