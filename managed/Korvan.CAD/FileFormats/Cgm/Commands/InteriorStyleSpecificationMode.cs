using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>What the sizes of hatches, patterns and blends count.</summary>
public sealed class InteriorStyleSpecificationMode : Command
{
    /// <summary>Creates the element with its default.</summary>
    public InteriorStyleSpecificationMode()
        : base(ClassCode.PictureDescriptorElement, (int)PictureDescriptorElement.InteriorStyleSpecificationMode)
    {
    }

    /// <summary>Gets or sets what they count.</summary>
    public SpecificationMode Value { get; set; }

    internal override void Exchange(ParameterExchange x) => Value = x.Enumeration(Value, SpecificationModeTools.Words);

    internal override void Apply(CodingState state) => state.Current.InteriorStyleMode = Value;
}
