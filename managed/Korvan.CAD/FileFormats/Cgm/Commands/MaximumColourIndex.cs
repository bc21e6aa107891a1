using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The largest number of a colour that the metafile uses.</summary>
public sealed class MaximumColourIndex : Command
{
    /// <summary>Creates the element with its defaults.</summary>
    public MaximumColourIndex()
        : base(ClassCode.MetaFileDescriptorElement, (int)MetaFileDescriptorElement.MaximumColourIndex)
    {
    }

    /// <summary>Gets or sets the number.</summary>
    public int Index { get; set; } = 63;

    internal override void Exchange(ParameterExchange x) => Index = x.ColorIndex(Index);
}
