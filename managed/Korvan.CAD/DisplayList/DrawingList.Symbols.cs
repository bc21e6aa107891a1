using System;
using System.Collections.Generic;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.DisplayList;

/// <summary>Items that repeat: a range of the list of symbols, and what is known of it.</summary>
internal sealed class Symbol
{
    internal required int FirstItem { get; set; }

    internal required int ItemCount { get; set; }

    /// <summary>Gets points whose convex hull holds what is drawn, without the width of lines.</summary>
    internal required Vec2[] Corners { get; init; }

    /// <summary>Gets the coordinates of the items, as a measure of what they take in a file.</summary>
    internal required int Weight { get; init; }

    /// <summary>Gets the entities that were drawn.</summary>
    internal required int Entities { get; init; }

    /// <summary>Gets how many blocks are nested in it.</summary>
    internal required int Levels { get; init; }

    /// <summary>Gets the layer of all items, or -1 where they are on several.</summary>
    internal required int Layer { get; init; }

    /// <summary>Gets how often the symbol was placed.</summary>
    internal int Uses { get; set; }
}

/// <summary>A symbol, and the rotation and translation that place it.</summary>
internal readonly record struct Placement(int Symbol, Affine2 Map);

/// <content>Symbols: what repeats is stored once, in a list of its own, and placed.</content>
internal sealed partial class DrawingList
{
    /// <summary>Symbols of fewer coordinates take no less than what they replace.</summary>
    private const int MinSymbolWeight = 12;

    /// <summary>Items that symbols may have in all, as they are not drawn in parts.</summary>
    private const int MaxSymbolItems = 65_536;

    private readonly List<Symbol> _symbols = [];
    private readonly List<Placement> _placements = [];
    private readonly PathBuffer _mapped = new();
    private DrawingList? _definitions;

    /// <summary>A list of symbols, with the layers, dashes and styles of the list that they are placed in.</summary>
    private DrawingList(DrawingList owner)
    {
        (_layers, _layerIndex, _screenLayers) = (owner._layers, owner._layerIndex, owner._screenLayers);
        (_dashes, _dashIndex, _styles, _styleIndex) =
            (owner._dashes, owner._dashIndex, owner._styles, owner._styleIndex);
        ColorMap = owner.ColorMap;
        _definitions = this;
    }

    /// <summary>Gets the list that holds the items of the symbols.</summary>
    internal DrawingList Definitions => _definitions ??= new DrawingList(this);

    /// <summary>Gets whether there are symbols.</summary>
    internal bool HasSymbols => _definitions?._symbols.Count > 0;

    /// <summary>Gets the symbols of a list of definitions.</summary>
    internal IReadOnlyList<Symbol> Symbols => _symbols;

    internal Placement PlacementOf(in DisplayItem item) => _placements[item.Extra];

    internal ReadOnlySpan<DisplayItem> ItemsOf(Symbol symbol) => _items.AsSpan(symbol.FirstItem, symbol.ItemCount);

    /// <summary>Begins a symbol in a list of definitions; what is added next belongs to it.</summary>
    internal int BeginSymbol() => _itemCount;

    /// <summary>Ends a symbol. Returns its index, or -1 where its items cannot be shared or should not be; they are
    /// removed then.</summary>
    /// <param name="first">What <see cref="BeginSymbol"/> returned.</param>
    /// <param name="entities">The entities that were drawn.</param>
    /// <param name="levels">How many blocks are nested in it.</param>
    /// <param name="isFree">Whether the items are the same at each place.</param>
    internal int EndSymbol(int first, int entities, int levels, bool isFree)
    {
        var corners = new List<Vec2>();
        int layer = _itemCount > first ? _items[first].Layer : -1;
        int weight = 0;
        bool isShared = isFree && Skipped.Count == 0 && _links.Count == 0 && _itemCount <= MaxSymbolItems;
        for (int i = first; i < _itemCount && isShared; i++)
        {
            ref readonly DisplayItem item = ref _items[i];
            isShared = item.Kind is not (DisplayKind.PushClip or DisplayKind.PopClip or DisplayKind.Symbol);
            layer = item.Layer == layer ? layer : -1;
            int before = corners.Count;
            AddCorners(item, corners);
            weight += item.Kind == DisplayKind.Text ? _texts[item.Extra].Text.Length + 8
                : item.Kind == DisplayKind.Image ? 12
                : 2 * (corners.Count - before);
        }

        if (!isShared || weight < MinSymbolWeight)
        {
            RemoveFrom(first);
            return -1;
        }

        _symbols.Add(new Symbol
        {
            FirstItem = first,
            ItemCount = _itemCount - first,
            Corners = Polygons.ConvexHull(corners),
            Weight = weight,
            Entities = entities,
            Levels = levels,
            Layer = layer,
        });
        return _symbols.Count - 1;
    }

    /// <summary>Places a symbol; false where a clip goes through it, so that its items have to be added.</summary>
    internal bool TryPlace(int index, in Affine2 map)
    {
        Symbol symbol = Definitions._symbols[index];
        Bounds2 box = BoxOf(symbol, map);
        if (!box.IsFinite || (ActiveClip is Bounds2 clip && !clip.Contains(box)))
        {
            return false;
        }

        if (_openLinks > 0 || !_bounds.Contains(box))
        {
            box = Definitions.ExtentsOf(symbol, map);
        }

        AddBounds(box);
        _reach.Add(box);
        ref DisplayItem item = ref NewItem(DisplayKind.Symbol, default, symbol.Layer);
        item.Extra = _placements.Count;
        _placements.Add(new Placement(index, map));
        symbol.Uses++;
        return true;
    }

    private static Bounds2 BoxOf(Symbol symbol, in Affine2 map)
    {
        Bounds2 box = Bounds2.Empty;
        foreach (Vec2 corner in symbol.Corners)
        {
            Vec2 p = map.Point(corner);
            box.Add(p.X, p.Y);
        }

        return box;
    }

    private Bounds2 BoxOf(in DisplayItem item)
    {
        Placement place = _placements[item.Extra];
        return BoxOf(Definitions._symbols[place.Symbol], place.Map);
    }

    /// <summary>The extents of the items of a symbol, where it is placed.</summary>
    private Bounds2 ExtentsOf(Symbol symbol, in Affine2 map)
    {
        Bounds2 box = Bounds2.Empty;
        var corners = new List<Vec2>();
        foreach (ref readonly DisplayItem item in ItemsOf(symbol))
        {
            if (item.VerbCount > 0)
            {
                _mapped.Clear();
                _mapped.AppendMapped(VerbsOf(item), CoordsOf(item), map);
                box.Add(_mapped.Bounds);
                continue;
            }

            corners.Clear();
            AddCorners(item, corners);
            foreach (Vec2 corner in corners)
            {
                Vec2 p = map.Point(corner);
                box.Add(p.X, p.Y);
            }
        }

        return box;
    }

    /// <summary>Adds points whose convex hull holds an item.</summary>
    private void AddCorners(in DisplayItem item, List<Vec2> corners)
    {
        if (item.Kind is DisplayKind.Text or DisplayKind.Image)
        {
            TextRun run = item.Kind == DisplayKind.Text ? _texts[item.Extra] : default;
            (Affine2 map, double width, double height) = item.Kind == DisplayKind.Text
                ? (run.Matrix, run.Advance, run.CapHeight)
                : (_images[item.Extra].Matrix, 1, 1);
            var box = Bounds2.Of(0, 0, width, height);
            box.Add(run.Ink);
            for (int corner = 0; corner < 4; corner++)
            {
                corners.Add(map.Point(
                    (corner & 1) == 0 ? box.MinX : box.MaxX, (corner >> 1) == 0 ? box.MinY : box.MaxY));
            }

            return;
        }

        ReadOnlySpan<double> coords = CoordsOf(item);
        int at = 0;
        foreach (PathVerb verb in VerbsOf(item))
        {
            int end = at + (verb switch { PathVerb.Curve => 6, PathVerb.Close => 0, _ => 2 });
            for (; at < end; at += 2)
            {
                corners.Add(new Vec2(coords[at], coords[at + 1]));
            }
        }
    }

    /// <summary>Adds the items of a symbol where it is placed; lines that reach far out of the page, by their parts
    /// near it.</summary>
    private void Expand(in Placement place, in NearBox near, PathBuffer path)
    {
        DrawingList from = Definitions;
        foreach (ref readonly DisplayItem item in from.ItemsOf(from._symbols[place.Symbol]))
        {
            DisplayItem copy = item;
            if (item.VerbCount > 0)
            {
                path.Clear();
                path.AppendMapped(from.VerbsOf(item), from.CoordsOf(item), place.Map);
                Store(path, ref copy);
                if (item.Kind == DisplayKind.Stroke && TryAddNear(copy, near))
                {
                    continue;
                }
            }

            copy.Extra = item.Extra < 0 ? -1 : AddMapped(from, item, place.Map);
            NewItem(item.Kind, item.Color, item.Layer) = copy;
        }
    }

    /// <summary>Adds the text, image or gradient of an item through a map, and returns its index.</summary>
    private int AddMapped(DrawingList from, in DisplayItem item, in Affine2 map)
    {
        switch (item.Kind)
        {
            case DisplayKind.Text:
                TextRun run = from._texts[item.Extra];
                run = run with { Matrix = map * run.Matrix };
                return _texts.Add(new ReadOnlySpan<TextRun>(in run));
            case DisplayKind.Image:
                PlacedImage image = from._images[item.Extra];
                _images.Add(image with { Matrix = map * image.Matrix });
                return _images.Count - 1;
            default:
                Gradient gradient = from._gradients[item.Extra];
                _gradients.Add(gradient with { Matrix = map * gradient.Matrix });
                return _gradients.Count - 1;
        }
    }

    /// <summary>Follows items that were moved, given the new index of each.</summary>
    private void MoveSymbols(int[] firsts)
    {
        foreach (Symbol symbol in _symbols)
        {
            int end = firsts[symbol.FirstItem + symbol.ItemCount];
            symbol.FirstItem = firsts[symbol.FirstItem];
            symbol.ItemCount = end - symbol.FirstItem;
        }
    }

    private void RemoveFrom(int first)
    {
        for (int i = _itemCount - 1; i >= first; i--)
        {
            ref readonly DisplayItem item = ref _items[i];
            if (item.VerbCount > 0)
            {
                _verbs.RemoveFrom(item.FirstVerb);
                _coords.RemoveFrom(item.FirstCoord);
            }
        }

        _itemCount = first;
        Skipped.Clear();
        _links.Clear();
    }
}
