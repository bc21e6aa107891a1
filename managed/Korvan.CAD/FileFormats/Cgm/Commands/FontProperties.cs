using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>What fonts shall look like that are not at hand: one list for each font of the font list, one after the
/// other; a property whose number is not larger than the last begins the next font.</summary>
public sealed class FontProperties : Command
{
    /// <summary>Creates an empty list.</summary>
    public FontProperties()
        : base(ClassCode.MetaFileDescriptorElement, (int)MetaFileDescriptorElement.FontProperties)
    {
    }

    /// <summary>Gets or sets the properties.</summary>
    public List<FontInfo> Infos { get; set; } = [];

    internal override void Exchange(ParameterExchange x) =>
        Infos = x.Rest(Infos, static (y, info) => ExchangeOne(y, info));

    private static FontInfo ExchangeOne(ParameterExchange x, FontInfo? info)
    {
        info ??= new FontInfo();
        info.PropertyIndicator = x.Index(info.PropertyIndicator);
        info.Priority = x.Integer(info.Priority);
        info.Value = x.Record(info.Value);
        return info;
    }

    /// <summary>One property of a font.</summary>
    public sealed class FontInfo
    {
        /// <summary>Creates a property.</summary>
        public FontInfo()
        {
        }

        /// <summary>Gets or sets which property it is (ISO/IEC 8632-1, 7.3.21): 1 index, 2 standard version, 3 design
        /// source, 4 family, 5 posture, 6 weight, 7 proportionate width, 8 included glyphs, 9 included sets, 10 design
        /// size, 11 least size, 12 largest size, 13 group, 14 structure.</summary>
        public int PropertyIndicator { get; set; } = 1;

        /// <summary>Gets or sets how much it matters that the property is met; larger numbers matter more.</summary>
        public int Priority { get; set; }

        /// <summary>Gets or sets the value, of the type that belongs to the property.</summary>
        public StructuredDataRecord Value { get; set; } = new();
    }
}
