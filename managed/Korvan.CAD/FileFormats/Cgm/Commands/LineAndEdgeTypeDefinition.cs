using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Dashes of an own kind.</summary>
public sealed class LineAndEdgeTypeDefinition : Command
{
    /// <summary>Creates the element with its defaults.</summary>
    public LineAndEdgeTypeDefinition()
        : base(ClassCode.PictureDescriptorElement, (int)PictureDescriptorElement.LineAndEdgeTypeDefinition)
    {
    }

    /// <summary>Gets or sets the number that lines and edges call the dashes by; negative.</summary>
    public int TypeIndex { get; set; } = -1;

    /// <summary>Gets or sets the length after which the dashes repeat, as widths of lines are told.</summary>
    public double RepeatLength { get; set; } = 1;

    /// <summary>Gets or sets the lengths of dash, gap, dash, gap and so on, relative to each other.</summary>
    public List<int> Elements { get; set; } = [1, 1];

    internal override void Exchange(ParameterExchange x)
    {
        TypeIndex = x.Index(TypeIndex);
        RepeatLength = x.Size(RepeatLength, x.State.Current.LineWidthMode);
        Elements = x.Rest(Elements, static (y, length) => y.Integer(length));
    }
}
