using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A list of layers that an index is limited to.</summary>
[CadSequence]
[CadMarkers(Leading = "AcDbFilter")]
[CadObject("LAYER_FILTER", Subclass = "AcDbLayerFilter")]
[CadBits("T[BL] LayerNames")]
public partial class CadLayerFilter : CadObjectBase
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadLayerFilter()
    {
    }

    /// <summary>Gets the names of the layers. The list is live. Group code 8.</summary>
    [CadList(8)]
    public List<string> LayerNames { get; } = [];
}
