using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.TableStyle;

/// <summary>The cells of one kind in a table style.</summary>
[CadSequence]
public partial class CadTableStyleCell
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadTableStyleCell()
    {
    }

    /// <summary>Gets or sets the name of the text style. Group code 7.</summary>
    [CadName(7, SymbolTable.Style)]
    public string TextStyleName { get; set; } = "STANDARD";

    /// <summary>Gets or sets the height of the text, in drawing units. Group code 140.</summary>
    [CadDouble(140)]
    public double TextHeight { get; set; } = 0.18;

    /// <summary>Gets or sets the alignment: 1 top left to 9 bottom right. Group code 170.</summary>
    [CadShort(170)]
    public short Alignment { get; set; } = 5;

    /// <summary>Gets or sets the index of the colour of the text. Group code 62.</summary>
    [CadColor(62)]
    public short TextColorId { get; set; }

    /// <summary>Gets or sets the index of the colour of the background. Group code 63.</summary>
    [CadColor(63)]
    public short FillColorId { get; set; } = 7;

    /// <summary>Gets or sets whether there is a background. Group code 283.</summary>
    [CadBool(283)]
    public bool HasFill { get; set; }

    /// <summary>Gets the type and format of values.</summary>
    [CadPart]
    public TableStyleCellContent Content { get; } = new();

    private const int BorderCount = 6;

    /// <summary>Gets the borders: top, inner horizontal, bottom, left, inner vertical and right. Group codes 274 to
    /// 279, 284 to 289 and 64 to 69.</summary>
    public TableStyleCellBorder[] Borders { get; } = [new(), new(), new(), new(), new(), new()];

    partial void OnExchange(ObjectExchange fields)
    {
        for (int i = 0; i < BorderCount; i++)
        {
            Borders[i].Exchange(fields, i);
        }
    }
}
