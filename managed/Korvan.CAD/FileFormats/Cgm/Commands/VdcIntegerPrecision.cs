using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The width of coordinates that are whole numbers.</summary>
public sealed class VdcIntegerPrecision : Command
{
    /// <summary>Creates the element with its default.</summary>
    public VdcIntegerPrecision()
        : base(ClassCode.ControlElement, (int)ControlElement.VdcIntegerPrecision)
    {
    }

    /// <summary>Gets or sets how many bits a coordinate has in a binary file: 16, 24 or 32.</summary>
    public int Precision { get; set; } = 16;

    internal override void Exchange(ParameterExchange x) =>
        Precision = PrecisionRules.Exchange(x, Precision, PrecisionRules.Coordinates, x.SignedBits);

    internal override void Apply(CodingState state) => state.Current.VdcIntegerBits = Precision;
}
