using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.AcadTable;

/// <summary>The value of an attribute of a block in a table cell.</summary>
[CadSequence]
[CadBits("H DefinitionHandle", "T Text", "BL Index")]
internal sealed partial class CellAttribute
{
    /// <summary>Gets or sets the handle of the attribute definition. Group code 330.</summary>
    [CadHandle(330)]
    public string DefinitionHandle { get; set; } = "0";

    /// <summary>Gets or sets the value. Group code 301.</summary>
    [CadString(301)]
    public string Text { get; set; } = "";

    /// <summary>Gets or sets the index of the attribute. Group code 92.</summary>
    [CadInt(92)]
    public int Index { get; set; }
}
