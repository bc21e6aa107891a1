using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A named style of table cells.</summary>
[CadSequence]
[CadLabel(300, "CELLSTYLE")]
[CadEnd(309, "CELLSTYLE_END")]
[CadBits("Part Format", "BL Id", "BL StyleClass", "T Name")]
public partial class CadCellStyle
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadCellStyle()
    {
    }

    /// <summary>Gets the format.</summary>
    [CadPart]
    public CadTableFormat Format { get; } = new();

    /// <summary>Gets or sets the number of the style. Group code 90.</summary>
    [CadInt(90)]
    [CadLabel(1, "CELLSTYLE_BEGIN")]
    public int Id { get; set; }

    /// <summary>Gets or sets what the style is for: 1 data, 2 labels. Group code 91.</summary>
    [CadInt(91)]
    public int StyleClass { get; set; }

    /// <summary>Gets or sets the name. Group code 300.</summary>
    [CadString(300)]
    public string Name { get; set; } = "";
}
