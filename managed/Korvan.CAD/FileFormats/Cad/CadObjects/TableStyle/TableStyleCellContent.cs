using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.TableStyle;

/// <summary>The type and format of values in the cells of a table style.</summary>
[CadSequence]
public partial class TableStyleCellContent
{
    /// <summary>Creates the object with its defaults.</summary>
    public TableStyleCellContent()
    {
    }

    /// <summary>Gets or sets the type: 1 an integer, 2 a number, 4 a string, 8 a date, 512 any. Group code
    /// 90.</summary>
    [CadInt(90, Since = 2007)]
    public int ValueType { get; set; } = 4;

    /// <summary>Gets or sets the unit: 0 none, 1 a distance, 2 an angle, 4 an area, 8 a volume. Group code
    /// 91.</summary>
    [CadInt(91, Since = 2007)]
    public int Unit { get; set; }

    /// <summary>Gets or sets the format. Group code 1.</summary>
    [CadString(1, Since = 2007)]
    public string Format { get; set; } = "";
}
