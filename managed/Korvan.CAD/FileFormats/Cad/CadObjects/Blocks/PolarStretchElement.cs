using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;

/// <summary>An entity of which a polar stretch action moves some points.</summary>
[CadSequence]
[CadBits("H EntityHandle", "BL[BS] PointIndices")]
internal sealed partial class PolarStretchElement
{
    /// <summary>Gets or sets the handle of the entity in hexadecimal. Group code 331.</summary>
    [CadHandle(331)]
    public string EntityHandle { get; set; } = "0";

    /// <summary>Gets the indices of the points that are moved. Group code 98.</summary>
    [CadList(98, Count = 79)]
    public List<int> PointIndices { get; } = [];
}
