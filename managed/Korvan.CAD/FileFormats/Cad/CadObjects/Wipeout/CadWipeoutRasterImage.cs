using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Wipeout;

/// <summary>An area that covers what was drawn before it, as drawings have it whose programs take wipeouts for raster
/// images: with the marker of these.</summary>
[CadObject("WIPEOUT", Subclass = "AcDbRasterImage")]
[CadBits("base")]
public partial class CadWipeoutRasterImage : CadWipeoutBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadWipeoutRasterImage()
    {
    }
}
