using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Wipeout;

/// <summary>What wipeouts have in common: an area in the colour of the background. The fields are those of a raster
/// image.</summary>
[CadFieldsOf(typeof(CadRasterImage))]
public abstract partial class CadWipeoutBase : CadEntityBase
{
    internal CadWipeoutBase()
    {
    }
}
