using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.AcadTable;

/// <summary>Converts between the properties of a cell that go before those of the style, as flags and values with group
/// codes, and the format that drawing databases of release 2010 and later have of the cell. Source: Open Design
/// Specification for .dwg files, 5.4.1, sections 20.4.101.3 and 20.4.101.4.</summary>
internal static class TableCellFormat
{
    // Properties of a format.
    private const int HasRotation = 0x4;
    private const int HasBlockScale = 0x8;
    private const int HasAlignment = 0x10;
    private const int HasColor = 0x20;
    private const int HasTextStyle = 0x40;
    private const int HasTextHeight = 0x80;
    private const int HasFill = 0x200;

    // Properties of a border.
    private const int HasLineWeight = 0x2;
    private const int HasLineColor = 0x8;
    private const int HasVisibility = 0x10;

    // Flags of a cell.
    private const int Alignment = 0x1;
    private const int FillNone = 0x2;
    private const int FillColor = 0x4;
    private const int TextColor = 0x8;
    private const int TextStyle = 0x10;
    private const int TextHeight = 0x20;

    private const int NoColor = 257;
    private const int ToTrueColor = 420 - 62;

    // Top, right, bottom and left: the edge of a format, the flag of the colour of a cell and its group code.
    private static readonly (int Edge, int Flag, int Code)[] Edges =
        [(1, 0x40, 69), (2, 0x80, 65), (4, 0x100, 66), (8, 0x200, 68)];

    /// <summary>Gives a cell the properties that its format states.</summary>
    internal static void Read(
        CadTableCell cell, CadTableFormat format, TableDataCellContent? content, BitExchange fields)
    {
        if (content is { HasFormat: not 0 })
        {
            ReadContent(cell, content.Format, content.Format.OverrideFlags, fields);
        }

        if (format.HasData == 0)
        {
            return;
        }

        int flags = format.OverrideFlags | format.ContentFormat.OverrideFlags;
        ReadContent(cell, format.ContentFormat, flags, fields);
        if ((flags & HasFill) != 0)
        {
            cell.OverrideFlags |= FillNone | FillColor;
            cell.Content.Add(TableOverride.Tag(283, format.BackgroundColorId == NoColor ? 0 : 1));
            AddColor(cell.Content, 63, format.BackgroundColorId, format.BackgroundColorValue);
        }

        foreach (CadGridFormat border in format.Borders)
        {
            ReadBorder(cell, border);
        }
    }

    /// <summary>Gives the format the properties that a cell states.</summary>
    internal static void Write(
        CadTableCell cell, CadTableFormat format, TableDataCellContent content, BitExchange fields)
    {
        List<CadCodeValue> tags = [.. cell.Content.Where(static tag =>
            tag.Attribute is not (CadTableCell.AttributeText or CadTableCell.AttributeDefinition))];
        content.HasFormat = 0;
        int flags = WriteContent(cell, format.ContentFormat, tags, fields);
        if ((cell.OverrideFlags & FillColor) != 0)
        {
            flags |= HasFill;
            (format.BackgroundColorId, format.BackgroundColorValue) = TakeColor(tags, 63);
        }

        format.Borders.Clear();
        foreach ((int edge, int flag, int code) in Edges)
        {
            WriteBorder(cell, format, tags, (edge, flag, code));
        }

        format.OverrideFlags = flags;
        format.ContentFormat.OverrideFlags = flags;
        format.HasData = (short)(flags != 0 || format.Borders.Count > 0 ? 1 : 0);
    }

    private static void ReadContent(CadTableCell cell, CadContentFormat format, int flags, BitExchange fields)
    {
        if ((flags & HasRotation) != 0)
        {
            cell.Rotation = format.Rotation;
        }

        if ((flags & HasBlockScale) != 0)
        {
            cell.Content.Add(TableOverride.Tag(CadTableCell.BlockScale, format.BlockScale));
        }

        if ((flags & HasAlignment) != 0)
        {
            cell.OverrideFlags |= Alignment;
            cell.Content.Add(TableOverride.Tag(170, format.Alignment));
        }

        if ((flags & HasColor) != 0)
        {
            cell.OverrideFlags |= TextColor;
            AddColor(cell.Content, 64, format.ColorId, format.ColorValue);
        }

        if ((flags & HasTextStyle) != 0 && fields.FindName(format.TextStyleHandle) is { } style)
        {
            cell.OverrideFlags |= TextStyle;
            cell.Content.Add(new CadCodeValue(7, style));
        }

        if ((flags & HasTextHeight) != 0)
        {
            cell.OverrideFlags |= TextHeight;
            cell.Content.Add(TableOverride.Tag(140, format.TextHeight));
        }
    }

    private static int WriteContent(
        CadTableCell cell, CadContentFormat format, List<CadCodeValue> tags, BitExchange fields)
    {
        int flags = cell.Rotation != 0 ? HasRotation : 0;
        format.Rotation = cell.Rotation;
        if (TableOverride.Take(tags, CadTableCell.BlockScale) is { } scale)
        {
            flags |= HasBlockScale;
            format.BlockScale = TableOverride.Parse(scale);
        }

        if (TableOverride.Take(tags, 170) is { } alignment)
        {
            flags |= HasAlignment;
            format.Alignment = (int)TableOverride.Parse(alignment);
        }

        if ((cell.OverrideFlags & TextColor) != 0)
        {
            flags |= HasColor;
            (format.ColorId, format.ColorValue) = TakeColor(tags, 64);
        }

        if (TableOverride.Take(tags, 7) is { } style)
        {
            flags |= HasTextStyle;
            format.TextStyleHandle = fields.FindHandle(SymbolTable.Style, style);
        }

        if (TableOverride.Take(tags, 140) is { } height)
        {
            flags |= HasTextHeight;
            format.TextHeight = TableOverride.Parse(height);
        }

        return flags;
    }

    private static void ReadBorder(CadTableCell cell, CadGridFormat border)
    {
        foreach ((int edge, int flag, int code) in Edges)
        {
            if ((border.EdgeFlags & edge) == 0)
            {
                continue;
            }

            if ((border.OverrideFlags & HasLineColor) != 0)
            {
                cell.OverrideFlags |= flag;
                AddColor(cell.Content, code, border.ColorId, border.ColorValue);
            }

            if ((border.OverrideFlags & HasLineWeight) != 0)
            {
                cell.OverrideFlags |= flag << 4;
                cell.Content.Add(TableOverride.Tag(code + 210, border.LineWeight));
            }

            if ((border.OverrideFlags & HasVisibility) != 0)
            {
                cell.OverrideFlags |= flag << 8;
                cell.Content.Add(TableOverride.Tag(code + 220, border.Visibility == 0 ? 1 : 0));
            }
        }
    }

    private static void WriteBorder(
        CadTableCell cell, CadTableFormat format, List<CadCodeValue> tags, (int Edge, int Flag, int Code) edge)
    {
        CadGridFormat border = new() { EdgeFlags = edge.Edge };
        if ((cell.OverrideFlags & edge.Flag) != 0)
        {
            border.OverrideFlags |= HasLineColor;
            (border.ColorId, border.ColorValue) = TakeColor(tags, edge.Code);
        }

        if ((cell.OverrideFlags & (edge.Flag << 4)) != 0)
        {
            border.OverrideFlags |= HasLineWeight;
            border.LineWeight = (int)TableOverride.Parse(TableOverride.Take(tags, edge.Code + 210));
        }

        if ((cell.OverrideFlags & (edge.Flag << 8)) != 0)
        {
            border.OverrideFlags |= HasVisibility;
            border.Visibility = TableOverride.Parse(TableOverride.Take(tags, edge.Code + 220)) != 0 ? 0 : 1;
        }

        if (border.OverrideFlags != 0)
        {
            format.Borders.Add(border);
        }
    }

    private static void AddColor(List<CadCodeValue> tags, int code, int index, int rgb)
    {
        tags.Add(TableOverride.Tag(code, index));
        if (rgb >= 0)
        {
            tags.Add(TableOverride.Tag(code + ToTrueColor, rgb));
        }
    }

    private static (short Index, int Rgb) TakeColor(List<CadCodeValue> tags, int code)
    {
        short index = (short)TableOverride.Parse(TableOverride.Take(tags, code));
        return (index, TableOverride.Take(tags, code + ToTrueColor) is { } rgb ? (int)TableOverride.Parse(rgb) : -1);
    }
}
