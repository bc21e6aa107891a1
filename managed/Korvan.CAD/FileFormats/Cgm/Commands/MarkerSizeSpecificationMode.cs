using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>What the sizes of markers count.</summary>
public sealed class MarkerSizeSpecificationMode : Command
{
    /// <summary>Creates the element with its default.</summary>
    public MarkerSizeSpecificationMode()
        : base(ClassCode.PictureDescriptorElement, (int)PictureDescriptorElement.MarkerSizeSpecificationMode)
    {
    }

    /// <summary>Gets or sets what they count.</summary>
    public SpecificationMode Value { get; set; } = SpecificationMode.Scaled;

    internal override void Exchange(ParameterExchange x) => Value = x.Enumeration(Value, SpecificationModeTools.Words);

    internal override void Apply(CodingState state) => state.Current.MarkerSizeMode = Value;
}
