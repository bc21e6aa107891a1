using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The width of indices.</summary>
public sealed class IndexPrecision : Command
{
    /// <summary>Creates the element with its default.</summary>
    public IndexPrecision()
        : base(ClassCode.MetaFileDescriptorElement, (int)MetaFileDescriptorElement.IndexPrecision)
    {
    }

    /// <summary>Gets or sets how many bits an index has in a binary file: 8, 16, 24 or 32.</summary>
    public int Precision { get; set; } = 16;

    internal override void Exchange(ParameterExchange x) =>
        Precision = PrecisionRules.Exchange(x, Precision, PrecisionRules.Bytes, x.SignedBits);

    internal override void Apply(CodingState state) => state.IndexBits = Precision;
}
