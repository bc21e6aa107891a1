using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.AcadTable;

/// <summary>How a table is broken into parts that stand beside or below one another.</summary>
[CadBits(
    "BL HasBreaks", "if HasBreaks != 0: BL Options", "if HasBreaks != 0: BL FlowDirection",
    "if HasBreaks != 0: BD Spacing", "if HasBreaks != 0: BL", "if HasBreaks != 0: BL",
    "if HasBreaks != 0: Part[BL] Heights", "ExchangeRanges()")]
internal sealed partial class TableBreakData
{
    internal int HasBreaks { get; set; }

    /// <summary>Gets or sets flags: 1 breaks are on, 2 top labels are repeated, 4 bottom labels are repeated, 8
    /// positions by hand, 16 heights by hand.</summary>
    internal int Options { get; set; }

    /// <summary>Gets or sets where parts follow: 1 at the right, 2 below, 4 at the left.</summary>
    internal int FlowDirection { get; set; } = 1;

    /// <summary>Gets or sets the distance of the parts, in drawing units.</summary>
    internal double Spacing { get; set; }

    internal List<TableBreakHeight> Heights { get; } = [];

    internal List<TableBreakRange> Ranges { get; } = [];

    // There is always a range.
    private void ExchangeRanges(BitExchange fields)
    {
        int count = fields.CountLong(System.Math.Max(Ranges.Count, 1));
        for (int i = 0; i < count; i++)
        {
            TableBreakRange range = fields.IsReading || i < Ranges.Count ? fields.Item(Ranges, i) : new();
            range.ExchangeBits(fields);
        }
    }
}

/// <summary>The height of a part of a table.</summary>
[CadBits("3BD Position", "BD Height", "BL Flags")]
internal sealed partial class TableBreakHeight
{
    internal Cad3DPoint Position { get; set; } = new();

    internal double Height { get; set; }

    internal int Flags { get; set; }
}

/// <summary>The rows of a part of a table.</summary>
[CadBits("3BD Position", "BL FirstRow", "BL LastRow")]
internal sealed partial class TableBreakRange
{
    internal Cad3DPoint Position { get; set; } = new();

    internal int FirstRow { get; set; }

    internal int LastRow { get; set; }
}
