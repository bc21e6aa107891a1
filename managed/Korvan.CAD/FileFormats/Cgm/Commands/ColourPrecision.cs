using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The width of the components of direct colours.</summary>
public sealed class ColourPrecision : Command
{
    /// <summary>Creates the element with its default.</summary>
    public ColourPrecision()
        : base(ClassCode.MetaFileDescriptorElement, (int)MetaFileDescriptorElement.ColourPrecision)
    {
    }

    /// <summary>Gets or sets how many bits a component has in a binary file: 8, 16, 24 or 32.</summary>
    public int Precision { get; set; } = 8;

    internal override void Exchange(ParameterExchange x) =>
        Precision = PrecisionRules.Exchange(x, Precision, PrecisionRules.Bytes, x.UnsignedBits);

    internal override void Apply(CodingState state) => state.ColorBits = Precision;
}
