using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A leader line of a multileader: from the arrowhead to the landing of its leader.</summary>
[CadBits(
    "3BD[BL] Vertices", "ExchangeBreaks()", "BL Index", "2010+ BS LeaderType",
    "2010+ CMP Color", "2010+ H LineTypeHandle", "2010+ BL LineWeight", "2010+ BD ArrowheadSize",
    "2010+ H ArrowheadHandle", "2010+ BL OverrideFlags", "2010+ ExchangePresence()")]
public partial class CadMLeaderLine
{
    /// <summary>Creates a line without vertices.</summary>
    public CadMLeaderLine()
    {
    }

    /// <summary>Gets the vertices from the arrowhead on, in world coordinates; the landing point follows them. The
    /// list is live. Group codes 10, 20, 30.</summary>
    [CadList(10)]
    public IList<Cad3DPoint> Vertices { get; } = new CheckedList<Cad3DPoint>("vertices");

    /// <summary>Gets the gaps where other lines cross. Group code 90.</summary>
    [CadRepeated(90)]
    internal List<MLeaderBreak> Breaks { get; } = [];

    /// <summary>Gets or sets the index of the line within its leader. Group code 91.</summary>
    [CadInt(91)]
    public int Index { get; set; }

    /// <summary>Gets or sets whether the line has properties of its own instead of those of the
    /// multileader.</summary>
    [CadPresence]
    public bool HasOwnProperties { get; set; }

    /// <summary>Gets or sets the type of the line: 0 none, 1 straight, 2 a spline. Group code 170.</summary>
    [CadShort(170)]
    [CadWhen(nameof(HasOwnProperties))]
    public short LeaderType { get; set; } = 1;

    /// <summary>Gets or sets the colour: 0xC0000000 by layer, 0xC1000000 by block, 0xC2RRGGBB a true colour,
    /// 0xC3000000 plus the index of a colour. Group code 92.</summary>
    [CadInt(92)]
    [CadWhen(nameof(HasOwnProperties))]
    public int Color { get; set; } = CadMLeader.ColorByBlock;

    /// <summary>Gets or sets the handle of the line type in hexadecimal. Group code 340.</summary>
    [CadHandle(340, Optional = true)]
    [CadWhen(nameof(HasOwnProperties))]
    public string LineTypeHandle { get; set; } = "";

    /// <summary>Gets or sets the line weight in hundredths of a millimetre; -1 by layer, -2 by block, -3 the default.
    /// Group code 171.</summary>
    [CadShort(171)]
    [CadWhen(nameof(HasOwnProperties))]
    public short LineWeight { get; set; } = -2;

    /// <summary>Gets or sets the size of the arrowhead. Group code 40.</summary>
    [CadDouble(40)]
    [CadWhen(nameof(HasOwnProperties))]
    public double ArrowheadSize { get; set; }

    /// <summary>Gets or sets the handle of the block of the arrowhead in hexadecimal; empty for the default one.
    /// Group code 341.</summary>
    [CadHandle(341, Optional = true)]
    [CadWhen(nameof(HasOwnProperties))]
    public string ArrowheadHandle { get; set; } = "";

    /// <summary>Gets or sets which of these properties go before those of the multileader: 1 type, 2 colour, 4 line
    /// type, 8 weight, 16 size, 32 arrowhead; added up. Group code 93.</summary>
    [CadInt(93)]
    [CadWhen(nameof(HasOwnProperties))]
    public int OverrideFlags { get; set; }

    /// <summary>Gets fields that the class does not have.</summary>
    internal List<CadCodeValue> Kept { get; } = [];

    // Own properties stand in the file or not: any of their group codes tells.
    partial void OnReadField(int code, FieldReader reader, ref bool taken)
    {
        HasOwnProperties |= code is 170 or 92 or 340 or 171 or 40 or 341 or 93;
    }

    partial void OnExchange(ObjectExchange fields) => fields.Tags(Kept);

    private void ExchangePresence(BitExchange fields) =>
        HasOwnProperties = fields.IsReading ? OverrideFlags != 0 : HasOwnProperties;

    // Breaks of one segment follow each other after its number.
    private void ExchangeBreaks(BitExchange fields)
    {
        if (fields.CountLong(Breaks.Count > 0 ? 1 : 0) == 0)
        {
            return;
        }

        int segment = fields.BitLong(Breaks.Count > 0 ? Breaks[0].Segment : 0);
        int count = fields.CountLong(Breaks.Count);
        for (int i = 0; i < count; i++)
        {
            MLeaderBreak gap = fields.Item(Breaks, i);
            gap.Segment = segment;
            fields.Point3(gap.Start);
            fields.Point3(gap.End);
        }
    }
}
