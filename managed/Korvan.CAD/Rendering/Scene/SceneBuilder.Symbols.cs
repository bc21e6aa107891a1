using System.Collections.Generic;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Scene;

/// <content>Blocks that repeat. The first reference is drawn as it is; the second one with the same layer, pen and
/// scale makes a symbol of the block, which it and all others place.</content>
internal sealed partial class SceneBuilder
{
    private const int MaxSymbolKeys = 50_000;
    private const int MaxSymbolEntities = 5_000;
    private const int MetOnce = -2;
    private const int NotShared = -1;

    private readonly Dictionary<SymbolKey, int> _symbols = [];
    private bool _isInSymbol;
    private bool _isPlaceBound;
    private int _deepest;

    /// <summary>Places a block as a symbol; false where it has to be drawn.</summary>
    private bool TryPlaceSymbol(
        BlockInfo block, in Affine3 map, LayerInfo layer, in Pen pen, BlockContext context)
    {
        if (!_style.HasSymbols || _isInSymbol || block.Entities.Count > MaxSymbolEntities
            || !SymbolShape.TryCreate(map, out SymbolShape shape, out Affine2 place))
        {
            return false;
        }

        var key = new SymbolKey(block, layer, context.Viewport, pen, shape);
        if (!_symbols.TryGetValue(key, out int index))
        {
            _ = _symbols.Count < MaxSymbolKeys && _symbols.TryAdd(key, MetOnce);
            return false;
        }

        if (index == MetOnce && place.TryInvert(out Affine2 back))
        {
            index = Define(block, Flat(back) * map, layer, pen, context);
            _symbols[key] = index;
        }

        if (index < 0)
        {
            return false;
        }

        Symbol symbol = List.Definitions.Symbols[index];
        if (context.Depth + symbol.Levels > BlockCells.DeepestNesting || !List.TryPlace(index, place))
        {
            return false;
        }

        Count(symbol.Entities);
        return true;
    }

    /// <summary>Draws a block as a symbol. Returns its index, or that it cannot be shared.</summary>
    private int Define(BlockInfo block, in Affine3 map, LayerInfo layer, in Pen pen, BlockContext context)
    {
        DrawingList page = List;
        DrawingList definitions = page.Definitions;
        int drawn = _drawn;
        int infinite = _infinite.Count;
        int first = definitions.BeginSymbol();
        (_canvas.List, _isInSymbol, _isPlaceBound, _deepest) = (definitions, true, false, context.Depth);
        try
        {
            DrawSpace(block, context.Inside(block, map, layer, pen));
        }
        finally
        {
            (_canvas.List, _isInSymbol) = (page, false);
        }

        bool isFree = !_isPlaceBound && _infinite.Count == infinite;
        _infinite.RemoveRange(infinite, _infinite.Count - infinite);
        int entities = _drawn - drawn;
        _drawn = drawn;
        int index = definitions.EndSymbol(first, entities, _deepest - context.Depth, isFree);
        return index < 0 ? NotShared : index;
    }

    private static Affine3 Flat(in Affine2 map) => new(
        new Vec3(map.Xx, map.Yx, 0), new Vec3(map.Xy, map.Yy, 0), Vec3.UnitZ, new Vec3(map.X0, map.Y0, 0));
}
