using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;

/// <summary>What parameters of dynamic blocks have in common that are defined by two points.</summary>
[CadSequence]
[CadObject("", Subclass = "AcDbBlockParameter")]
[CadBits(
    "base", "B ShowProperties", "B ChainActions", "3BD BasePoint", "3BD EndPoint", "ExchangeConnections()",
    "ExchangeGrips()", "BS BaseLocation")]
public abstract partial class CadBlock2PtParameters : CadBlockElement
{
    internal CadBlock2PtParameters()
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

    /// <summary>Gets or sets the first point, in the coordinates of the block. Group codes 1010, 1020, 1030.</summary>
    [Cad3DPoint(1010)]
    [CadSubclass("AcDbBlock2PtParameter")]
    public Cad3DPoint BasePoint { get; set; } = new();

    /// <summary>Gets or sets the second point, in the coordinates of the block. Group codes 1011, 1021, 1031.</summary>
    [Cad3DPoint(1011)]
    public Cad3DPoint EndPoint { get; set; } = new();

    /// <summary>Gets the indices of the nodes of the grips. The list is live. Group code 91.</summary>
    [CadList(91, Count = 170)]
    public List<int> GripIds { get; } = [];

    private static readonly (int Count, int Node, int Name)[] ConnectionCodes =
        [(171, 92, 301), (172, 93, 302), (173, 94, 303), (174, 95, 304)];

    private readonly List<ParameterConnection>[] _connections =
        [.. ConnectionCodes.Select(static _ => new List<ParameterConnection>())];

    /// <summary>Gets or sets where the parameter is measured from: 0 the first point, 1 the middle. Group code
    /// 177.</summary>
    public short BaseLocation { get; set; }

    /// <summary>Gets the indices of the nodes that take values of the parameter over. Group codes 92 to 95.</summary>
    /// <returns>The indices.</returns>
    public int[] GetConnectedNodes() =>
        [.. _connections.SelectMany(static list => list).Select(static one => one.NodeId)];

    partial void OnExchange(ObjectExchange fields)
    {
        for (int i = 0; i < ConnectionCodes.Length; i++)
        {
            ParameterConnection.Exchange(fields, ConnectionCodes[i], _connections[i]);
        }

        BaseLocation = fields.Int16(177, BaseLocation);
    }

    private void ExchangeConnections(BitExchange fields)
    {
        foreach (List<ParameterConnection> connections in _connections)
        {
            ParameterConnection.Exchange(fields, connections);
        }
    }

    private void ExchangeGrips(BitExchange fields)
    {
        const int count = 4;
        fields.Resize(GripIds, fields.IsReading ? count : GripIds.Count);
        for (int i = 0; i < count; i++)
        {
            int id = fields.BitLong(i < GripIds.Count ? GripIds[i] : 0);
            if (fields.IsReading)
            {
                GripIds[i] = id;
            }
        }
    }
}
