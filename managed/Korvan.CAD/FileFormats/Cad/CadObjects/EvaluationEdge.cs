using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>An edge of an evaluation graph.</summary>
[CadSequence]
[CadBits("BL Id", "BL Flags", "BL ReferenceCount", "BL From", "BL To", "BL[5] Links")]
internal sealed partial class EvaluationEdge
{
    /// <summary>Gets or sets the index. Group code 92.</summary>
    [CadInt(92)]
    public int Id { get; set; }

    /// <summary>Gets or sets the flags. Group code 93.</summary>
    [CadInt(93)]
    public int Flags { get; set; }

    /// <summary>Gets or sets the number of references. Group code 94.</summary>
    [CadInt(94)]
    public int ReferenceCount { get; set; }

    /// <summary>Gets or sets the index of the node that it comes from. Group code 91.</summary>
    [CadInt(91)]
    public int From { get; set; }

    /// <summary>Gets or sets the index of the node that it goes to. Group code 91.</summary>
    [CadInt(91)]
    public int To { get; set; }

    /// <summary>Gets the neighbours among the edges of both nodes; -1 for none. The list is live. Group code
    /// 92.</summary>
    [CadList(92, Max = 5)]
    public List<int> Links { get; } = [];
}
