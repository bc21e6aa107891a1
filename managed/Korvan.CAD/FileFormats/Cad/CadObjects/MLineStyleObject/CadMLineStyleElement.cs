using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.MLineStyleObject;

/// <summary>A line of a multiline style.</summary>
[CadBits("BD Offset", "CMC ColorId ColorValue", "-2013 ExchangeLineType()", "2018+ H LineTypeName")]
public partial class CadMLineStyleElement
{
    /// <summary>Creates a line in the middle.</summary>
    public CadMLineStyleElement()
    {
    }

    /// <summary>Gets or sets the distance from the middle. Group code 49.</summary>
    [CadDouble(49)]
    public double Offset { get; set; }

    /// <summary>Gets or sets the index of the colour. Group code 62.</summary>
    [CadColor(62)]
    public short ColorId { get; set; } = 256;

    /// <summary>Gets or sets the colour as 0xRRGGBB; -1 for none. Group code 420.</summary>
    [CadInt(420, Optional = true, Since = 2004)]
    public int ColorValue { get; set; } = -1;

    /// <summary>Gets or sets the name of the line type. Group code 6.</summary>
    [CadName(6, SymbolTable.LineType)]
    public string LineTypeName { get; set; } = "BYLAYER";

    private void ExchangeLineType(BitExchange fields) => LineTypeName = fields.LineTypeByIndex(LineTypeName);
}
