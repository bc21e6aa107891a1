using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>Tells an image entity that its definition changed.</summary>
[CadObject("IMAGEDEF_REACTOR", Subclass = "AcDbRasterImageDefReactor")]
[CadBits("BL ClassVersion")]
public partial class CadRasterImageDefReactor : CadObjectBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadRasterImageDefReactor()
    {
    }

    /// <summary>Gets or sets the version of the object. Group code 90.</summary>
    [CadInt(90)]
    public int ClassVersion { get; set; }

    /// <summary>Gets or sets the handle of the image entity in hexadecimal. Group code 330.</summary>
    [CadHandle(330, Optional = true)]
    public string AssociatedImageHandle { get; set; } = "";
}
