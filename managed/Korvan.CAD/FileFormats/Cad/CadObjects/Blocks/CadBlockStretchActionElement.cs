using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;

/// <summary>An entity of which a stretch action moves some points.</summary>
[CadSequence]
[CadBits("H EntityHandle", "BL[BS] PointIndices")]
public partial class CadBlockStretchActionElement
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadBlockStretchActionElement()
    {
    }

    /// <summary>Gets or sets the handle of the entity in hexadecimal. Group code 331.</summary>
    [CadHandle(331)]
    public string EntityHandle { get; set; } = "0";

    /// <summary>Gets the indices of the points that are moved. The list is live. Group code 94.</summary>
    [CadList(94, Count = 74)]
    public List<int> PointIndices { get; } = [];
}
