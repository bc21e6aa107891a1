using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;

/// <summary>What parameters of dynamic blocks have in common that are defined by one point.</summary>
[CadSequence]
[CadObject("", Subclass = "AcDbBlockParameter")]
[CadBits("base", "B ShowProperties", "B ChainActions", "3BD DefinitionPoint", "ExchangeConnections()", "BL GripId")]
public abstract partial class CadBlock1PtParameters : CadBlockElement
{
    internal CadBlock1PtParameters()
    {
    }

    /// <summary>Gets or sets whether the properties of the block reference show the parameter. Group code
    /// 280.</summary>
    [CadBool(280)]
    public bool ShowProperties { get; set; } = true;

    /// <summary>Gets or sets whether a change by an action triggers the actions of the parameter. Group code
    /// 281.</summary>
    [CadBool(281)]
    public bool ChainActions { get; set; }

    /// <summary>Gets or sets the point, in the coordinates of the block. Group codes 1010, 1020, 1030.</summary>
    [Cad3DPoint(1010)]
    [CadSubclass("AcDbBlock1PtParameter")]
    public Cad3DPoint DefinitionPoint { get; set; } = new();

    /// <summary>Gets or sets the index of the node of the grip. Group code 93.</summary>
    [CadInt(93)]
    public int GripId { get; set; }

    // The codes of the count, of the nodes and of the names.
    private static readonly (int Count, int Node, int Name)[] ConnectionCodes = [(170, 91, 301), (171, 92, 302)];

    private readonly List<ParameterConnection>[] _connections =
        [.. ConnectionCodes.Select(static _ => new List<ParameterConnection>())];

    /// <summary>Gets the indices of the nodes that take values of the parameter over: first those of X, then those of
    /// Y. Group codes 91, 92.</summary>
    /// <returns>The indices.</returns>
    public int[] GetConnectedNodes() =>
        [.. _connections.SelectMany(static list => list).Select(static one => one.NodeId)];

    partial void OnExchange(ObjectExchange fields)
    {
        for (int i = 0; i < ConnectionCodes.Length; i++)
        {
            ParameterConnection.Exchange(fields, ConnectionCodes[i], _connections[i]);
        }
    }

    private void ExchangeConnections(BitExchange fields)
    {
        foreach (List<ParameterConnection> connections in _connections)
        {
            ParameterConnection.Exchange(fields, connections);
        }
    }
}
