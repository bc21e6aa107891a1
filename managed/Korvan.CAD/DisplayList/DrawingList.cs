using System;
using System.Collections.Generic;
using System.Runtime.CompilerServices;
using System.Runtime.InteropServices;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.DisplayList;

/// <summary>
/// Everything that one page shows, in drawing units and in the order of drawing. It holds no reference to a device
/// or to the drawing, so the same list is drawn to PDF, SVG and pixels alike.
/// </summary>
internal sealed partial class DrawingList
{
    /// <summary>Coordinates that a list may hold (1.2 GB): past it a drawing is a bomb of nested arrays, not a
    /// page.</summary>
    internal const int MaxCoords = 150_000_000;

    /// <summary>How the kinds of skipped things end that lack a file.</summary>
    internal const string MissingFile = " whose file is not there";

    private const int MaxLinks = 100_000;

    /// <summary>Coordinates that count as an item where the number of stored items is limited.</summary>
    private const int CoordsPerItem = 16;

    /// <summary>Parts of paths, and characters, that take about as long as a step of work to be placed and
    /// written.</summary>
    private const int VerbsPerStep = 64;
    private const int CharactersPerStep = 16;

    private readonly List<Gradient> _gradients = [];
    private readonly List<PlacedImage> _images = [];
    private readonly List<string> _layers = [];
    private readonly Dictionary<string, int> _layerIndex = new(StringComparer.OrdinalIgnoreCase);
    private readonly List<double[]> _dashes = [];
    private readonly Dictionary<string, int> _dashIndex = [];
    private readonly List<Bounds2> _clips = [];
    private readonly List<StrokeStyle> _styles = [];
    private readonly Dictionary<StrokeStyle, int> _styleIndex = [];
    private readonly HashSet<int> _screenLayers = [];
    private readonly List<PlacedLink> _links = [];
    private readonly BlockStore<PathVerb> _verbs = new();
    private readonly BlockStore<double> _coords = new();
    private readonly BlockStore<TextRun> _texts = new();
    private DisplayItem[] _items = [];
    private int _itemCount;
    private Bounds2 _bounds = Bounds2.Empty;
    private Bounds2 _linked = Bounds2.Empty;
    private int _openLinks;

    internal DrawingList()
    {
    }

    /// <summary>What becomes of every colour that is drawn with; null to keep them.</summary>
    internal Func<Rgba, Rgba>? ColorMap { get; init; }

    /// <summary>Gets the most that is stored at once; nothing for all.</summary>
    internal int? MaxStored { get; init; }

    /// <summary>Gets the number of items for which there is room from the beginning.</summary>
    internal int Expected { get; init; } = 256;

    /// <summary>Gets what receives the stored items each time that the most is stored, before they are removed; null to
    /// remove them all, so that nothing but extents and counts is known.</summary>
    internal Action<DrawingList>? Drain { get; init; }

    /// <summary>Gets whether items were removed.</summary>
    internal bool IsPartial { get; private set; }

    /// <summary>Gets whether nothing but the extents is still to be known.</summary>
    internal bool IsMeasured => IsPartial && Drain is null;

    internal ReadOnlySpan<DisplayItem> Items => _items.AsSpan(0, _itemCount);

    internal IReadOnlyList<string> Layers => _layers;

    internal IReadOnlyList<PlacedLink> Links => _links;

    /// <summary>Determines whether a list has fewer items than a number, and no long ones among them.</summary>
    internal bool IsSmallerThan(int items) =>
        _itemCount + (_coords.End / CoordsPerItem) < items && _images.Count == 0;

    /// <summary>What has been drawn so far, as far as it lies in the clips that hold it.</summary>
    internal Bounds2 Bounds => _bounds;

    /// <summary>The region that can be drawn on at this moment.</summary>
    internal Bounds2? ActiveClip => _clips.Count > 0 ? _clips[^1] : null;

    /// <summary>Kinds of entities that were met but have no picture, with their counts.</summary>
    internal Dictionary<string, int> Skipped { get; } = new(StringComparer.Ordinal);

    internal ReadOnlySpan<PathVerb> VerbsOf(in DisplayItem item) => _verbs.From(item.FirstVerb)[..item.VerbCount];

    internal ReadOnlySpan<double> CoordsOf(in DisplayItem item) => _coords.From(item.FirstCoord);

    internal double[] DashOf(in DisplayItem item) => _dashes[item.Dash];

    internal StrokeStyle? StyleOf(in DisplayItem item) => item.Style > 0 ? _styles[item.Style - 1] : null;

    internal TextRun TextOf(in DisplayItem item) => _texts[item.Extra];

    internal Gradient GradientOf(in DisplayItem item) => _gradients[item.Extra];

    internal PlacedImage ImageOf(in DisplayItem item) => _images[item.Extra];

    /// <summary>Whether a layer is printed, not only shown on screens.</summary>
    internal bool IsPrinted(int layer) => !_screenLayers.Contains(layer);

    internal int Layer(string name, bool isPrinted = true)
    {
        if (!_layerIndex.TryGetValue(name, out int index))
        {
            index = _layers.Count;
            _layers.Add(name);
            _ = isPrinted || _screenLayers.Add(index);
            _layerIndex.Add(name, index);
        }

        return index;
    }

    /// <summary>Keeps one copy of each pattern; lengths alternate between ink and gap, in drawing units.</summary>
    internal int Dash(ReadOnlySpan<double> lengths)
    {
        string key = new(MemoryMarshal.Cast<double, char>(lengths));
        if (!_dashIndex.TryGetValue(key, out int index))
        {
            index = _dashes.Count;
            _dashes.Add(lengths.ToArray());
            _dashIndex.Add(key, index);
        }

        return index;
    }

    /// <summary>Keeps one copy of each style.</summary>
    internal int StyleIndex(StrokeStyle style)
    {
        if (!_styleIndex.TryGetValue(style, out int index))
        {
            _styles.Add(style);
            index = _styles.Count;
            _styleIndex.Add(style, index);
        }

        return index;
    }

    /// <summary>Begins what belongs to a link; <see cref="CloseLink"/> takes the result.</summary>
    internal Bounds2 OpenLink()
    {
        Bounds2 outer = _linked;
        _linked = Bounds2.Empty;
        _openLinks++;
        return outer;
    }

    /// <summary>Ends a link, which covers what was drawn since it began.</summary>
    internal void CloseLink(string target, Bounds2 outer)
    {
        _openLinks--;
        if (!_linked.IsEmpty && _links.Count < MaxLinks)
        {
            _links.Add(new PlacedLink(target, _linked));
        }

        outer.Add(_linked);
        _linked = outer;
    }

    internal void Skip(string kind) =>
        Skipped[kind] = Skipped.TryGetValue(kind, out int count) ? count + 1 : 1;

    internal void Stroke(PathBuffer path, in StrokeAttributes style)
    {
        if (path.IsEmpty || !AddPath(path, DisplayKind.Stroke, style.Color, style.Layer, out int index))
        {
            return;
        }

        _reach.Add(path.Bounds);
        ref DisplayItem item = ref _items[index];
        item.LineWeight = style.LineWeight;
        item.WeightInUnits = style.WeightInUnits;
        item.Style = style.Style;
        item.Dash = style.Dash;
        item.DashOffset = style.DashOffset;
        item.TextHeight = style.TextHeight;
    }

    internal void Fill(PathBuffer path, Rgba color, int layer, bool evenOdd, Gradient? gradient = null)
    {
        if (path.IsEmpty || !AddPath(path, DisplayKind.Fill, color, layer, out int index))
        {
            return;
        }

        _items[index].EvenOdd = evenOdd;
        if (gradient != null)
        {
            _items[index].Extra = _gradients.Count;
            _gradients.Add(ColorMap is null
                ? gradient
                : gradient with
                {
                    Stops = Array.ConvertAll(gradient.Stops, stop =>
                stop with { Color = ColorMap(stop.Color) })
                });
        }
    }

    /// <summary>Determines whether nothing changes by a box and what is near it: the extents hold both.</summary>
    internal bool Holds(in Bounds2 box, double reach) =>
        _definitions != this && _openLinks == 0 && _bounds.Contains(new Bounds2
        {
            MinX = box.MinX - reach,
            MinY = box.MinY - reach,
            MaxX = box.MaxX + reach,
            MaxY = box.MaxY + reach,
        });

    internal void Text(in TextRun run, Rgba color, int layer, in Bounds2 extent)
    {
        if (!extent.IsFinite || !AddBounds(extent))
        {
            return;
        }

        Budget.Step(run.Text.Length / CharactersPerStep); // again for each reference of a block
        ref DisplayItem item = ref NewItem(DisplayKind.Text, color, layer);
        item.Extra = _texts.Add(new ReadOnlySpan<TextRun>(in run));
    }

    internal void Image(PlacedImage image, int layer, in Bounds2 extent)
    {
        if (!extent.IsFinite || !AddBounds(extent))
        {
            return;
        }

        ref DisplayItem item = ref NewItem(DisplayKind.Image, default, layer);
        item.Extra = _images.Count;
        _images.Add(ColorMap is null ? image : Mapped(image));
    }

    private PlacedImage Mapped(PlacedImage image)
    {
        byte[] pixels = [.. image.Pixels];
        for (int i = 0; i < pixels.Length; i += 4)
        {
            Rgba color = ColorMap!(new Rgba(pixels[i + 2], pixels[i + 1], pixels[i], 255));
            (pixels[i], pixels[i + 1], pixels[i + 2]) = (color.B, color.G, color.R);
        }

        return image with { Pixels = pixels };
    }

    /// <summary>Everything up to the matching pop shows only inside the path.</summary>
    internal void PushClip(PathBuffer path, bool evenOdd)
    {
        Bounds2 region = _clips.Count > 0 ? path.Bounds.Clip(_clips[^1]) : path.Bounds;
        ref DisplayItem item = ref NewItem(DisplayKind.PushClip, default, -1);
        item.EvenOdd = evenOdd;
        Store(path, ref item);
        _clips.Add(region);
    }

    internal void PopClip()
    {
        NewItem(DisplayKind.PopClip, default, -1);
        _clips.RemoveAt(_clips.Count - 1);
    }

    private bool AddPath(PathBuffer path, DisplayKind kind, Rgba color, int layer, out int index)
    {
        index = -1;
        if (!path.Bounds.IsFinite || !AddBounds(path.Bounds))
        {
            return false;
        }

        ref DisplayItem item = ref NewItem(kind, color, layer);
        index = _itemCount - 1;
        Store(path, ref item);
        return true;
    }

    /// <summary>Says whether any of the box is visible, and widens the extents by that part.</summary>
    private bool AddBounds(in Bounds2 box)
    {
        Bounds2 visible = _clips.Count > 0 ? box.Clip(_clips[^1]) : box;
        if (visible.IsEmpty)
        {
            return false;
        }

        _bounds.Add(visible);
        if (_openLinks > 0)
        {
            _linked.Add(visible);
        }

        return true;
    }

    /// <summary>Hands on what is stored, and removes it. Tables that items refer to by index stay.</summary>
    private void Empty()
    {
        Drain?.Invoke(this);
        IsPartial = true;
        _itemCount = 0;
        _verbs.RemoveFrom(0);
        _coords.RemoveFrom(0);
        _texts.RemoveFrom(0);
        _gradients.Clear();
        _images.Clear();
        _placements.Clear();
        EmptyPatterns();
    }

    private ref DisplayItem NewItem(DisplayKind kind, Rgba color, int layer)
    {
        if (!_isResolving && (_itemCount >= MaxStored || _coords.End / CoordsPerItem >= MaxStored))
        {
            Empty();
        }

        if (_itemCount == _items.Length)
        {
            int length = Math.Max(Expected, _itemCount * 2);
            Budget.VerifyRoom((long)length * Unsafe.SizeOf<DisplayItem>());
            Array.Resize(ref _items, length);
        }

        ref DisplayItem item = ref _items[_itemCount++];
        item = new DisplayItem
        {
            Kind = kind,
            Color = _isResolving ? color : ColorMap?.Invoke(color) ?? color,
            Layer = layer,
            Dash = -1,
            Extra = -1
        };
        return ref item;
    }

    private void Store(PathBuffer path, ref DisplayItem item)
    {
        ReadOnlySpan<PathVerb> newVerbs = path.Verbs;
        ReadOnlySpan<double> newCoords = path.Coords;
        if (_coords.End + (long)newCoords.Length > MaxCoords)
        {
            throw new RenderException(
                $"The drawing needs more than {MaxCoords} coordinates on one page; it is too large to be rendered.");
        }

        Budget.Step(newVerbs.Length / VerbsPerStep);
        item.FirstVerb = _verbs.Add(newVerbs);
        item.VerbCount = newVerbs.Length;
        item.FirstCoord = _coords.Add(newCoords);
    }
}
