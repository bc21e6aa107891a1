using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Wipeout;

/// <summary>What wipeouts have in common: an area in the colour of the background. The fields are those of a raster
/// image.</summary>
[CadFieldsOf(typeof(CadRasterImage))]
[CadBits(
    "BL ClassVersion", "3BD InsertionPoint", "3BD VectorU", "3BD VectorV", "2RD ImageSize", "BS DisplayFlags",
    "B ClippingState", "RC Brightness", "RC Contrast", "RC Fade", "2010+ B ClipMode", "BS ClippingBoundaryType",
    "ExchangeClip()", "H ImageDefReference", "H ImageDefReactorReference")]
public abstract partial class CadWipeoutBase : CadEntityBase
{
    internal CadWipeoutBase()
    {
    }

    private void ExchangeClip(BitExchange fields) =>
        RasterClip.Exchange(fields, ClippingBoundaryType, ClipBoundaryVertices);
}
