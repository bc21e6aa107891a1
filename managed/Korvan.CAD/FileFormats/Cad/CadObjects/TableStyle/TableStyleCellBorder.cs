using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.TableStyle;

/// <summary>A border of the cells of one kind in a table style.</summary>
public class TableStyleCellBorder
{
    private const int LineWeightCode = 274;
    private const int VisibleCode = 284;
    private const int ColorCode = 64;

    /// <summary>Creates the object with its defaults.</summary>
    public TableStyleCellBorder()
    {
    }

    /// <summary>Gets or sets the line weight in hundredths of a millimetre; -1 by layer, -2 by block, -3 the default.
    /// Group codes 274 to 279.</summary>
    public short LineWeight { get; set; } = -2;

    /// <summary>Gets or sets whether the border is shown. Group codes 284 to 289.</summary>
    public bool IsVisible { get; set; } = true;

    /// <summary>Gets or sets the index of the colour. Group codes 64 to 69.</summary>
    public short ColorId { get; set; }

    /// <summary>Carries the border.</summary>
    /// <param name="fields">What carries it.</param>
    /// <param name="index">The index of the border, which the group codes depend on.</param>
    internal void Exchange(ObjectExchange fields, int index)
    {
        LineWeight = fields.Int16(LineWeightCode + index, LineWeight);
        IsVisible = fields.Bool(VisibleCode + index, IsVisible);
        ColorId = fields.Color(ColorCode + index, ColorId);
    }
}
