using Korvan.CAD.FileFormats.Cad.CadObjects.Field;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.AcadTable;

/// <summary>A value that a program attached to a column, row or cell.</summary>
[CadSequence]
[CadBits("T Key", "Part Value")]
public partial class TableCustomData
{
    /// <summary>Creates the object with its defaults.</summary>
    public TableCustomData()
    {
    }

    /// <summary>Gets or sets the name. Group code 300.</summary>
    [CadString(300)]
    public string Key { get; set; } = "";

    /// <summary>Gets the value.</summary>
    [CadPart]
    [CadLabel(301, "DATAMAP_VALUE")]
    public CadFieldData Value { get; } = new();
}
