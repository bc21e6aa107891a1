using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>A node of an evaluation graph.</summary>
[CadSequence]
[CadBits("BL Id", "BL Flags", "BL NextId", "H Expression", "BL[4] Edges")]
internal sealed partial class EvaluationNode
{
    /// <summary>Gets or sets the index. Group code 91.</summary>
    [CadInt(91)]
    public int Id { get; set; }

    /// <summary>Gets or sets the flags. Group code 93.</summary>
    [CadInt(93)]
    public int Flags { get; set; } = 32;

    /// <summary>Gets or sets the index of the next node. Group code 95.</summary>
    [CadInt(95)]
    public int NextId { get; set; }

    /// <summary>Gets or sets the handle of the object with the value. Group code 360.</summary>
    [CadHandle(360)]
    public string Expression { get; set; } = "0";

    /// <summary>Gets the first and last edges that come in and go out; -1 for none. The list is live. Group code
    /// 92.</summary>
    [CadList(92, Max = 4)]
    public List<int> Edges { get; } = [];
}
