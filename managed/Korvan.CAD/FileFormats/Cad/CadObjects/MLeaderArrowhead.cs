using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>The arrowhead of one line of a multileader.</summary>
[CadBits("B LineIndex", "H BlockHandle")]
internal sealed partial class MLeaderArrowhead
{
    [CadInt(94)]
    internal int LineIndex { get; set; }

    [CadHandle(345)]
    internal string BlockHandle { get; set; } = "";
}
