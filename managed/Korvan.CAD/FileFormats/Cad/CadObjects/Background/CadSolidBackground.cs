using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Background;

/// <summary>A background of a view in one colour.</summary>
[CadSequence]
[CadObject("SOLID_BACKGROUND", Subclass = "AcDbSolidBackground")]
[CadBits("BL Version", "BL Color")]
public partial class CadSolidBackground : CadObjectBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadSolidBackground()
    {
    }

    /// <summary>Gets or sets the version of the data. Group code 90.</summary>
    [CadInt(90)]
    public int Version { get; set; } = 1;

    /// <summary>Gets or sets the colour: 0xC2RRGGBB a true colour, 0xC3000000 plus the index of a colour. Group code
    /// 90.</summary>
    [CadInt(90)]
    public int Color { get; set; }
}
