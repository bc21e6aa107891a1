using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A background of a view that shows the sky.</summary>
[CadSequence]
[CadObject("SKYLIGHT_BACKGROUND", Subclass = "AcDbSkyBackground")]
[CadBits("BL Version", "H SunHandle")]
public partial class CadSkyLightBackGround : CadObjectBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadSkyLightBackGround()
    {
    }

    /// <summary>Gets or sets the version of the data. Group code 90.</summary>
    [CadInt(90)]
    public int Version { get; set; } = 1;

    /// <summary>Gets or sets the handle of the sun in hexadecimal. Group code 340.</summary>
    [CadHandle(340)]
    public string SunHandle { get; set; } = "0";
}
