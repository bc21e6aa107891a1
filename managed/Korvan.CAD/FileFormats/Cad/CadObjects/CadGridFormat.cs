using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A border of table cells.</summary>
[CadSequence]
[CadEnd(309, "GRIDFORMAT_END")]
[CadBits(
    "BL EdgeFlags", "if EdgeFlags != 0: BL OverrideFlags", "if EdgeFlags != 0: BL BorderType",
    "if EdgeFlags != 0: TC ColorId ColorValue ColorName", "if EdgeFlags != 0: BL LineWeight",
    "if EdgeFlags != 0: H LineTypeHandle", "if EdgeFlags != 0: BL Visibility",
    "if EdgeFlags != 0: BD DoubleLineSpacing")]
public partial class CadGridFormat
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadGridFormat()
    {
    }

    /// <summary>Gets or sets the edges: 1 top, 2 right, 4 bottom, 8 left, 16 inner vertical, 32 inner horizontal. Group
    /// code 95.</summary>
    [CadInt(95)]
    public int EdgeFlags { get; set; }

    /// <summary>Gets or sets which properties go before those of the style: 1 kind, 2 line weight, 4 line type, 8
    /// colour, 16 visibility, 32 distance. Group code 90.</summary>
    [CadInt(90)]
    [CadLabel(302, "GRIDFORMAT")]
    [CadLabel(1, "GRIDFORMAT_BEGIN")]
    public int OverrideFlags { get; set; }

    /// <summary>Gets or sets the kind: 1 a single line, 2 a double line. Group code 91.</summary>
    [CadInt(91)]
    public int BorderType { get; set; } = 1;

    /// <summary>Gets or sets the index of the colour. Group code 62.</summary>
    [CadColor(62)]
    public short ColorId { get; set; }

    /// <summary>Gets or sets the colour as 0xRRGGBB; -1 for none. Group code 420.</summary>
    [CadInt(420, Optional = true)]
    public int ColorValue { get; set; } = -1;

    /// <summary>Gets or sets the name of the colour in its book; empty for none. Group code 430.</summary>
    [CadString(430, Optional = true)]
    public string ColorName { get; set; } = "";

    /// <summary>Gets or sets the line weight in hundredths of a millimetre; -1 by layer, -2 by block, -3 the default.
    /// Group code 92.</summary>
    [CadInt(92)]
    public int LineWeight { get; set; } = -2;

    /// <summary>Gets or sets the handle of the line type in hexadecimal. Group code 340.</summary>
    [CadHandle(340)]
    public string LineTypeHandle { get; set; } = "0";

    /// <summary>Gets or sets whether the border is hidden: 0 no, 1 yes. Group code 93.</summary>
    [CadInt(93)]
    public int Visibility { get; set; }

    /// <summary>Gets or sets the distance of the lines of a double line, in drawing units. Group code 40.</summary>
    [CadDouble(40)]
    public double DoubleLineSpacing { get; set; }
}
