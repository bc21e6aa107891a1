using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A colour that entities refer to.</summary>
[CadSequence]
[CadObject("DBCOLOR", Subclass = "AcDbColor")]
[CadBits("CMC ColorId ColorValue ColorName")]
public partial class CadDbColor : CadObjectBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadDbColor()
    {
    }

    /// <summary>Gets or sets the index of the colour. Group code 62.</summary>
    [CadColor(62)]
    public short ColorId { get; set; } = 256;

    /// <summary>Gets or sets the colour as 0xRRGGBB; -1 for none. Group code 420.</summary>
    [CadInt(420, Optional = true)]
    public int ColorValue { get; set; } = -1;

    /// <summary>Gets or sets the name of the colour in its book; empty for none. Group code 430.</summary>
    [CadString(430, Optional = true)]
    public string ColorName { get; set; } = "";
}
