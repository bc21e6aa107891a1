using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;

/// <summary>A parameter or action of which a stretch action moves some points.</summary>
[CadSequence]
[CadBits("BL NodeId", "BL[BS] PointIndices")]
internal sealed partial class StretchNode
{
    /// <summary>Gets or sets the index of the node. Group code 95.</summary>
    [CadInt(95)]
    public int NodeId { get; set; }

    /// <summary>Gets the indices of the points that are moved. The list is live. Group code 94.</summary>
    [CadList(94, Count = 76)]
    public List<int> PointIndices { get; } = [];
}
