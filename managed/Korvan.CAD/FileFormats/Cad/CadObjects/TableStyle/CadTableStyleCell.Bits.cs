using System.Linq;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.TableStyle;

/// <content>The fields in drawing databases.</content>
public partial class CadTableStyleCell
{
    // The borders of a format in the order of the cell: top, inner horizontal, bottom, left, inner vertical, right.
    private static readonly int[] Edges = [1, 32, 4, 8, 16, 2];

    /// <summary>Takes the properties of a cell style over.</summary>
    internal void Take(CadTableFormat format, BitExchange fields)
    {
        const int noColor = 257;
        CadContentFormat content = format.ContentFormat;
        TextStyleName = fields.FindName(content.TextStyleHandle) ?? TextStyleName;
        TextHeight = content.TextHeight;
        Alignment = (short)content.Alignment;
        TextColorId = content.ColorId;
        HasFill = format.BackgroundColorId != noColor;
        FillColorId = HasFill ? format.BackgroundColorId : FillColorId;
        (Content.ValueType, Content.Unit, Content.Format) =
            (content.ValueType, content.ValueUnit, content.ValueFormat);
        for (int i = 0; i < BorderCount; i++)
        {
            if (format.Borders.FirstOrDefault(border => (border.EdgeFlags & Edges[i]) != 0) is { } border)
            {
                Borders[i].LineWeight = (short)border.LineWeight;
                Borders[i].IsVisible = border.Visibility == 0;
                Borders[i].ColorId = border.ColorId;
            }
        }
    }

    /// <summary>Gives a cell style the properties. Colours that have an RGB value keep it while their index is the
    /// same.</summary>
    internal void Store(CadTableFormat format, BitExchange fields)
    {
        const short noColor = 257;
        CadContentFormat content = format.ContentFormat;
        content.TextStyleHandle = fields.FindHandle(SymbolTable.Style, TextStyleName);
        (content.TextHeight, content.Alignment) = (TextHeight, Alignment);
        (content.ValueType, content.ValueUnit, content.ValueFormat) =
            (Content.ValueType, Content.Unit, Content.Format);
        content.ColorValue = content.ColorId == TextColorId ? content.ColorValue : -1;
        content.ColorId = TextColorId;
        short fill = HasFill ? FillColorId : noColor;
        format.BackgroundColorValue = format.BackgroundColorId == fill ? format.BackgroundColorValue : -1;
        format.BackgroundColorId = fill;
        for (int i = 0; i < BorderCount; i++)
        {
            CadGridFormat? border = format.Borders.FirstOrDefault(known => known.EdgeFlags == Edges[i]);
            if (border is null)
            {
                border = new CadGridFormat { EdgeFlags = Edges[i] };
                format.Borders.Add(border);
            }

            border.LineWeight = Borders[i].LineWeight;
            border.Visibility = Borders[i].IsVisible ? 0 : 1;
            border.ColorValue = border.ColorId == Borders[i].ColorId ? border.ColorValue : -1;
            border.ColorId = Borders[i].ColorId;
        }
    }

    /// <summary>Carries the cell, up to release 2007.</summary>
    internal void ExchangeBits(BitExchange fields)
    {
        TextStyleName = fields.Name(SymbolTable.Style, TextStyleName);
        TextHeight = fields.BitDouble(TextHeight);
        Alignment = (short)fields.BitShort(Alignment);
        TextColorId = (short)fields.TrueColor(TextColorId, -1, "").Index;
        FillColorId = (short)fields.TrueColor(FillColorId, -1, "").Index;
        HasFill = fields.Bit(HasFill);
        foreach (TableStyleCellBorder border in Borders)
        {
            border.LineWeight = (short)fields.BitShort(border.LineWeight);
            border.IsVisible = fields.Bit(border.IsVisible);
            border.ColorId = (short)fields.TrueColor(border.ColorId, -1, "").Index;
        }

        if (fields.Release >= 2007)
        {
            Content.ValueType = fields.BitLong(Content.ValueType);
            Content.Unit = fields.BitLong(Content.Unit);
            Content.Format = fields.Text(Content.Format);
        }
    }
}
