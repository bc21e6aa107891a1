using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>The graph by which the parameters, actions and grips of a dynamic block, or the steps of a solid's history,
/// depend on one another.</summary>
[CadSequence]
[CadObject("ACAD_EVALUATION_GRAPH", Subclass = "AcDbEvalGraph")]
[CadBits("BL LastNodeId", "BL LastNodeIdAgain", "Part[BL] NodeList", "Part[BL] EdgeList")]
public partial class CadAcadEvaluationGraph : CadObjectBase, ICadObjectContainer
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadAcadEvaluationGraph()
    {
    }

    /// <summary>Gets or sets the largest index of a node. Group code 96.</summary>
    [CadInt(96)]
    public int LastNodeId { get; set; }

    /// <summary>Gets or sets the largest index of a node once more. Group code 97.</summary>
    [CadInt(97)]
    public int LastNodeIdAgain { get; set; }

    /// <summary>Gets the nodes. The list is live. Group code 91.</summary>
    [CadRepeated(91, Optional = true)]
    internal IList<EvaluationNode> NodeList { get; } = new CheckedList<EvaluationNode>("node_list");

    /// <summary>Gets the edges. The list is live. Group code 92.</summary>
    [CadRepeated(92, Optional = true)]
    internal IList<EvaluationEdge> EdgeList { get; } = new CheckedList<EvaluationEdge>("edge_list");

    /// <summary>Gets the handles of the nodes in hexadecimal, in the order of the graph. Group code 360.</summary>
    /// <returns>The handles.</returns>
    public string[] GetObjectHandles() => [.. NodeList.Select(static node => node.Expression)];

    /// <summary>Gets the edges between nodes: for each the index of the node it comes from and of that it goes to.
    /// Group code 91.</summary>
    /// <returns>Pairs of indices, one after the other.</returns>
    public int[] GetEdges() => [.. EdgeList.SelectMany(static edge => new[] { edge.From, edge.To })];
}
