using System;
using System.Collections.Generic;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.FileFormats.Cgm.Enums;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Metafile;

/// <content>Groups of elements: segments, application structures, saved contexts, clipping and regions.</content>
internal sealed partial class CgmInterpreter
{
    private const int MaxCopyDepth = 32;

    private readonly Dictionary<int, Segment> _segments;
    private readonly Dictionary<int, PathBuffer> _regions = [];
    private readonly Dictionary<int, bool> _activeRegions = [];
    private readonly Stack<Structure> _structures = new();
    private int _pushedClips;
    private bool _clipIsStale = true;
    private int _copies;

    /// <summary>What the end of an application structure restores.</summary>
    private readonly record struct Structure(PaintState? Inherited, int Layer, bool IsShown);

    /// <summary>Whether primitives are visible here; those in no layer are hidden if only some layers are
    /// selected.</summary>
    private bool IsShown => _structures.Count == 0 ? _style.Layers is null : _structures.Peek().IsShown;

    private static bool Draws(Command command) =>
        command.ElementClass == ClassCode.GraphicalPrimitiveElement || command is CopySegment;

    private static void AddStructure(Dictionary<Type, Action<CgmInterpreter, Command>> d)
    {
        On<SavePrimitiveContext>(d, static (i, x) => i._saved[x.ContextName] = i.Paint.Clone());
        On<RestorePrimitiveContext>(d, static (i, x) => i.Restore(x.ContextName));
        On<ClipIndicator>(d, static (i, x) => i.ChangeClip(x));
        On<ClipRectangle>(d, static (i, x) => i.ChangeClip(x));
        On<CopySegment>(d, static (i, x) => i.Copy(x));
        On<BeginApplicationStructure>(d, static (i, x) => i.BeginStructure(x));
        On<ApplicationStructureAttribute>(d, static (i, x) => i.SetAttribute(x));
        On<EndApplicationStructure>(d, static (i, x) => i.EndStructure());
        On<BeginProtectionRegion>(d, static (i, x) => i.BeginCollecting(Collecting.Region, x.RegionIndex));
        On<EndProtectionRegion>(d, static (i, x) => i._regions[i._regionIndex] = i.EndCollecting(Collecting.Region));
        On<ProtectionRegionIndicator>(d, static (i, x) => i.UseRegion(x));
        On<GeneralizedDrawingPrimitive>(d, static (i, x) => i.Skip($"generalized drawing primitive {x.Identifier}"));
        On<PolySymbol>(d, static (i, x) => i.Skip("symbol of a library"));
    }

    /// <summary>Counts what is left out or approximated, for the notes of the export.</summary>
    private void Skip(string kind) => List.Skip(kind);

    private void Restore(int name)
    {
        if (_saved.TryGetValue(name, out PaintState? paint))
        {
            _state.Paint = paint.Clone();
            _clipIsStale = true;
        }
    }

    private void ChangeClip(Command command)
    {
        StateChanges.Apply(_state, command);
        _clipIsStale = true;
    }

    /// <summary>Draws a segment of the picture and stores it for copies.</summary>
    private int RunSegment(BeginSegment begin, int at, int end)
    {
        int last = at + 1;
        while (last < end && _scene.CommandAt(last) is not EndSegment)
        {
            last++;
        }

        var segment = new Segment(at + 1, last);
        _segments[begin.Identifier] = segment;
        Affine2 outer = _map;
        _map = outer * TransformationOf(segment, begin.Identifier);
        Run(segment.First, segment.End);
        _map = outer;
        return last;
    }

    private void Copy(CopySegment copy)
    {
        if (!_segments.TryGetValue(copy.SegmentIdentifier, out Segment segment))
        {
            Skip("copy of a missing segment");
            return;
        }

        if (_copies >= MaxCopyDepth)
        {
            throw new RenderException(
                $"Segments of the picture \"{_picture.Name}\" contain each other; segment {copy.SegmentIdentifier} was "
                + "being copied.");
        }

        Affine2 outer = _map;
        PaintState paint = Paint.Clone();
        Affine2 own = copy.AppliesSegmentTransformation
            ? TransformationOf(segment, copy.SegmentIdentifier)
            : Affine2.Identity;
        _map = outer * Matrix(copy) * own;
        _copies++;
        Run(segment.First, segment.End);
        FinishText();
        _copies--;
        _map = outer;
        _state.Paint = paint;
        _clipIsStale = true;
    }

    private static Affine2 Matrix(CopySegment copy) =>
        new(copy.ScaleX, copy.ShearY, copy.ShearX, copy.ScaleY, copy.TranslationX, copy.TranslationY);

    private Affine2 TransformationOf(Segment segment, int identifier)
    {
        for (int at = segment.First; at < segment.End; at++)
        {
            if (_scene.CommandAt(at) is SegmentTransformation t && t.SegmentIdentifier == identifier)
            {
                return new Affine2(t.ScaleX, t.ShearY, t.ShearX, t.ScaleY, t.TranslationX, t.TranslationY);
            }
        }

        return Affine2.Identity;
    }

    private void BeginStructure(BeginApplicationStructure begin)
    {
        bool isLayer = string.Equals(begin.StructureType, "layer", StringComparison.OrdinalIgnoreCase);
        bool inherits = begin.Inheritance == BeginApplicationStructure.InheritanceFlag.ApplicationStructure;
        PaintState? inherited = inherits ? Paint.Clone() : null;
        _structures.Push(new Structure(inherited, _layer, IsShown));
        if (isLayer)
        {
            SetLayer(begin.Identifier);
        }
    }

    private void SetLayer(string name)
    {
        Structure own = _structures.Pop();
        _layer = List.Layer(name);
        _structures.Push(own with { IsShown = _style.Layers?.Contains(name) ?? true });
    }

    private void SetAttribute(ApplicationStructureAttribute attribute)
    {
        string? value = FirstText(attribute.Value);
        if (_structures.Count == 0 || value is null)
        {
            return;
        }

        if (attribute.AttributeType.Equals("layername", StringComparison.OrdinalIgnoreCase))
        {
            SetLayer(value);
        }
        else if (attribute.AttributeType.Equals("visibility", StringComparison.OrdinalIgnoreCase))
        {
            Structure own = _structures.Pop();
            bool isOff = value.Equals("off", StringComparison.OrdinalIgnoreCase);
            _structures.Push(own with { IsShown = own.IsShown && !isOff });
        }
    }

    private void EndStructure()
    {
        if (_structures.TryPop(out Structure own))
        {
            _layer = own.Layer;
            if (own.Inherited is PaintState paint)
            {
                _state.Paint = paint;
                _clipIsStale = true;
            }
        }
    }

    private static string? FirstText(StructuredDataRecord record)
    {
        foreach (StructuredDataRecord.Member member in record.Members)
        {
            if (member.Values.Count > 0 && member.Values[0] is string text)
            {
                return text;
            }
        }

        return null;
    }

    private void UseRegion(ProtectionRegionIndicator indicator)
    {
        const int off = 1, clip = 2;
        if (indicator.Indicator == off)
        {
            _activeRegions.Remove(indicator.RegionIndex);
        }
        else
        {
            _activeRegions[indicator.RegionIndex] = indicator.Indicator == clip;
        }

        _clipIsStale = true;
    }

    /// <summary>Applies the clipping of the state to the display list; called before anything is drawn.</summary>
    private void EnsureClip()
    {
        if (!_clipIsStale)
        {
            return;
        }

        ReleaseClips();
        if (Paint.IsClipping && Paint.Clip is ClipRectangle clip)
        {
            PathBuffer box = _canvas.NewPath();
            AddBox(PenOn(box), V(clip.FirstCorner), V(clip.SecondCorner));
            Push(box, evenOdd: false);
        }

        foreach ((int index, bool isClip) in _activeRegions)
        {
            if (_regions.TryGetValue(index, out PathBuffer? region))
            {
                PathBuffer path = _canvas.NewPath();
                if (!isClip)
                {
                    // A shielded region is the hole in a box around the whole picture.
                    Bounds2 all = _picture.Frame.Region;
                    var pen = new PathPen(path, Affine3.Identity);
                    AddBox(pen, new Vec2(all.MinX, all.MinY), new Vec2(all.MaxX, all.MaxY));
                }

                path.AppendMapped(region, Affine3.Identity, 0);
                Push(path, evenOdd: true);
            }
        }

        _clipIsStale = false;
    }

    private void Push(PathBuffer path, bool evenOdd)
    {
        List.PushClip(path, evenOdd);
        _pushedClips++;
    }

    private void ReleaseClips()
    {
        for (; _pushedClips > 0; _pushedClips--)
        {
            List.PopClip();
        }

        _clipIsStale = true;
    }

    private static void AddBox(in PathPen pen, Vec2 a, Vec2 b)
    {
        pen.MoveTo(a);
        pen.LineTo(new Vec2(b.X, a.Y));
        pen.LineTo(b);
        pen.LineTo(new Vec2(a.X, b.Y));
        pen.Close();
    }
}
