using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;

/// <summary>A value that a parameter offers to other nodes.</summary>
[CadSequence]
[CadBits("BL NodeId", "T Value")]
internal sealed partial class ParameterConnection
{

    /// <summary>Gets or sets the index of the node.</summary>
    internal int NodeId { get; set; }

    /// <summary>Gets or sets the name of the value.</summary>
    internal string Value { get; set; } = "";

    /// <summary>Carries the connections of one property of a parameter.</summary>
    internal static void Exchange(
        ObjectExchange fields, (int Count, int Node, int Name) codes, List<ParameterConnection> connections)
    {
        int count = fields.Count(codes.Count, connections.Count);
        for (int i = 0; i < count; i++)
        {
            ParameterConnection one = fields.Item(connections, i);
            one.NodeId = fields.Int32(codes.Node, one.NodeId);
            one.Value = fields.Text(codes.Name, one.Value);
        }
    }

    /// <summary>Carries a list of connections.</summary>
    internal static void Exchange(BitExchange fields, List<ParameterConnection> connections)
    {
        int count = fields.CountLong(connections.Count);
        for (int i = 0; i < count; i++)
        {
            fields.Item(connections, i).ExchangeBits(fields);
        }
    }
}
