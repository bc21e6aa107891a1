using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>What the widths of edges count.</summary>
public sealed class EdgeWidthSpecificationMode : Command
{
    /// <summary>Creates the element with its default.</summary>
    public EdgeWidthSpecificationMode()
        : base(ClassCode.PictureDescriptorElement, (int)PictureDescriptorElement.EdgeWidthSpecificationMode)
    {
    }

    /// <summary>Gets or sets what they count.</summary>
    public SpecificationMode Value { get; set; } = SpecificationMode.Scaled;

    internal override void Exchange(ParameterExchange x) => Value = x.Enumeration(Value, SpecificationModeTools.Words);

    internal override void Apply(CodingState state) => state.Current.EdgeWidthMode = Value;
}
