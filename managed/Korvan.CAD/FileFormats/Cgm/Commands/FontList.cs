using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The names of the fonts, which texts count from 1.</summary>
public sealed class FontList : Command
{
    /// <summary>Creates an empty list.</summary>
    public FontList()
        : base(ClassCode.MetaFileDescriptorElement, (int)MetaFileDescriptorElement.FontList)
    {
    }

    /// <summary>Gets or sets the names.</summary>
    public List<string> Fonts { get; set; } = [];

    internal override void Exchange(ParameterExchange x) =>
        Fonts = x.Rest(Fonts, static (y, text) => y.String(text));
}
