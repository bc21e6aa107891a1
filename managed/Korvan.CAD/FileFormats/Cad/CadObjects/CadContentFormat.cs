using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>How the content of table cells is formatted.</summary>
[CadSequence]
[CadLabel(300, "CONTENTFORMAT")]
[CadLabel(1, "CONTENTFORMAT_BEGIN")]
[CadEnd(309, "CONTENTFORMAT_END")]
[CadBits(
    "BL OverrideFlags", "BL PropertyFlags", "BL ValueType", "BL ValueUnit", "T ValueFormat", "BD Rotation",
    "BD BlockScale", "BL Alignment", "TC ColorId ColorValue ColorName", "H TextStyleHandle", "BD TextHeight")]
public partial class CadContentFormat
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadContentFormat()
    {
    }

    /// <summary>Gets or sets which properties go before those of the style, a bit for each. Group code 90.</summary>
    [CadInt(90)]
    public int OverrideFlags { get; set; }

    /// <summary>Gets or sets which properties the format has, a bit for each. Group code 91.</summary>
    [CadInt(91)]
    public int PropertyFlags { get; set; }

    /// <summary>Gets or sets the type of values: 1 an integer, 2 a number, 4 a string, 8 a date, 512 any. Group code
    /// 92.</summary>
    [CadInt(92)]
    public int ValueType { get; set; }

    /// <summary>Gets or sets the unit of values: 0 none, 1 a distance, 2 an angle, 4 an area, 8 a volume. Group code
    /// 93.</summary>
    [CadInt(93)]
    public int ValueUnit { get; set; }

    /// <summary>Gets or sets the format that values are shown in. Group code 300.</summary>
    [CadString(300)]
    public string ValueFormat { get; set; } = "";

    /// <summary>Gets or sets the rotation, in radians. Group code 40.</summary>
    [CadDouble(40)]
    public double Rotation { get; set; }

    /// <summary>Gets or sets the scale of blocks. Group code 140.</summary>
    [CadDouble(140)]
    public double BlockScale { get; set; } = 1;

    /// <summary>Gets or sets the alignment: 1 top left to 9 bottom right. Group code 94.</summary>
    [CadInt(94)]
    public int Alignment { get; set; } = 5;

    /// <summary>Gets or sets the index of the colour of the content. Group code 62.</summary>
    [CadColor(62)]
    public short ColorId { get; set; }

    /// <summary>Gets or sets the colour of the content as 0xRRGGBB; -1 for none. Group code 420.</summary>
    [CadInt(420, Optional = true)]
    public int ColorValue { get; set; } = -1;

    /// <summary>Gets or sets the name of the colour in its book; empty for none. Group code 430.</summary>
    [CadString(430, Optional = true)]
    public string ColorName { get; set; } = "";

    /// <summary>Gets or sets the handle of the text style in hexadecimal. Group code 340.</summary>
    [CadHandle(340)]
    public string TextStyleHandle { get; set; } = "0";

    /// <summary>Gets or sets the height of the text, in drawing units. Group code 144.</summary>
    [CadDouble(144)]
    public double TextHeight { get; set; }
}
