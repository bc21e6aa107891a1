using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;

/// <summary>A parameter or action of which a polar stretch action moves some points.</summary>
[CadSequence]
[CadBits("BL NodeId", "BL[BS] PointIndices")]
internal sealed partial class PolarStretchNode
{
    /// <summary>Gets or sets the index of the node. Group code 76.</summary>
    [CadInt(76)]
    public int NodeId { get; set; }

    /// <summary>Gets the indices of the points that are moved. Group code 99.</summary>
    [CadList(99, Count = 78)]
    public List<int> PointIndices { get; } = [];
}
