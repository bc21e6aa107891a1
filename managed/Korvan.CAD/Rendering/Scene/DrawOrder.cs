using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>Entities in the order in which they cover each other.</summary>
internal static class DrawOrder
{
    /// <summary>
    /// The order of the file, unless the block has sort keys: an entity without a key of its own sorts by its handle.
    /// </summary>
    internal static IReadOnlyList<CadEntityBase> Sorted(BlockInfo block)
    {
        if (block.DrawOrder is not { Count: > 0 } order)
        {
            return block.Entities;
        }

        return block.Entities
            .Select(
                entity => (Key: order.TryGetValue(entity.Handle, out ulong key) ? key : entity.Handle, Entity: entity))
            .OrderBy(pair => pair.Key)
            .Select(pair => pair.Entity)
            .ToArray();
    }
}
