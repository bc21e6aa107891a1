using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>How real numbers are coded, other than coordinates.</summary>
public sealed class RealPrecision : RealPrecisionBase
{
    /// <summary>Creates the element with its default, a fixed point and 32 bits.</summary>
    public RealPrecision()
        : base(ClassCode.MetaFileDescriptorElement, (int)MetaFileDescriptorElement.RealPrecision)
    {
    }

    internal override void Apply(CodingState state) => state.Real = Value;
}
