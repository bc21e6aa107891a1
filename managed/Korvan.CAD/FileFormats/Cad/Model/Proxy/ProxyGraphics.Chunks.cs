using System;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Model.Proxy;

/// <content>What each type of chunk consists of.</content>
internal static partial class ProxyGraphics
{
    private const int MaxTransforms = 64;
    private const int PointSize = 3 * sizeof(double);
    private const int ByLayer = 256;
    private const int ByBlock = 0;
    private const int FirstReservedLineType = 0x7ffe;
    private const int HasColors = 1;
    private const int HasLayers = 2;
    private const int HasLineTypes = 4;
    private const int HasMarkers = 0x20;
    private const int HasVisibilities = 0x40;

    private static void Draw(Chunk type, ChunkReader chunk, State state)
    {
        if (Set(type, ref chunk, state))
        {
            return;
        }

        if (!state.AreTraitsTold)
        {
            state.Sink.Traits(state.Traits);
            state.AreTraitsTold = true;
        }

        state.IsDrawn |= type switch
        {
            Chunk.Circle => Circle(ref chunk, state),
            Chunk.CircleOfPoints => ArcThrough(chunk.Vector(), chunk.Vector(), chunk.Vector(), true, state),
            Chunk.Arc => Arc(ref chunk, state),
            Chunk.ArcOfPoints => ArcThrough(chunk.Vector(), chunk.Vector(), chunk.Vector(), false, state),
            Chunk.Polyline or Chunk.PolylineWithNormal => Line(chunk.Points(chunk.Count(PointSize)), false, state),
            Chunk.Polygon => Line(chunk.Points(chunk.Count(PointSize)), true, state),
            Chunk.Mesh => Mesh(ref chunk, state),
            Chunk.Shell => Shell(ref chunk, state),
            Chunk.Text => Text(ref chunk, false, state),
            Chunk.UnicodeText => Text(ref chunk, true, state),
            Chunk.FullText => FullText(ref chunk, false, state),
            Chunk.FullUnicodeText => FullText(ref chunk, true, state),
            Chunk.ConstructionLine => Infinite(chunk.Vector(), chunk.Vector(), true, state),
            Chunk.Ray => Infinite(chunk.Vector(), chunk.Vector(), false, state),
            Chunk.LightPolyline => LightPolyline(ref chunk, state),
            _ => false,
        };
    }

    /// <summary>Takes a chunk that sets how others are drawn. False for one that draws.</summary>
    private static bool Set(Chunk type, ref ChunkReader chunk, State state)
    {
        ShapeTraits traits = state.Traits;
        switch (type)
        {
            case Chunk.Color:
                traits = traits with { Color = chunk.Int(), TrueColor = ShapeTraits.ByEntity };
                break;
            case Chunk.TrueColor:
                traits = WithColor(traits, unchecked((uint)chunk.Int()));
                break;
            case Chunk.Layer:
                traits = traits with { Layer = chunk.Int() };
                break;
            case Chunk.LineType:
                int lineType = chunk.Int();
                traits = traits with
                {
                    LineType = lineType is >= 0 and < FirstReservedLineType ? lineType : ShapeTraits.ByEntity,
                };
                break;
            case Chunk.LineWeight:
                traits = traits with { LineWeight = (short)chunk.Int() };
                break;
            case Chunk.LineTypeScale:
                traits = traits with { LineTypeScale = chunk.Double() };
                break;
            case Chunk.Fill:
                state.IsFilled = chunk.Int() != 0;
                break;
            case Chunk.Thickness:
                state.Thickness = chunk.Double();
                break;
            case Chunk.PushTransform or Chunk.PushOtherTransform:
                Push(state, chunk.Transform());
                break;
            case Chunk.PushClip:
                PushClip(ref chunk, state);
                break;
            case Chunk.PopClip:
                PopClip(state);
                break;
            case Chunk.PopTransform:
                _ = state.Transforms.Count > 1 && state.Transforms.TryPop(out _);
                break;
            default:
                return type == Chunk.Extents || !Enum.IsDefined(type);
        }

        state.AreTraitsTold &= traits == state.Traits;
        state.Traits = traits;
        return true;
    }

    private static void Push(State state, in Affine3 transform) =>
        state.Transforms.Push(state.Transforms.Count < MaxTransforms && transform.IsFinite
            ? state.Map * transform
            : state.Map);

    /// <summary>Clips to a polygon, or to a rectangle by its corners, in a plane of its own that is given by what maps
    /// the drawing to it; a reference that was clipped tells what maps the drawing to its block.</summary>
    private static void PushClip(ref ChunkReader chunk, State state)
    {
        Vec3 normal = chunk.Vector();
        Vec3 origin = chunk.Vector();
        int count = chunk.Count(2 * sizeof(double));
        var points = new Vec2[count];
        for (int i = 0; i < count; i++)
        {
            points[i] = new Vec2(chunk.Double(), chunk.Double());
        }

        Affine3 toPlane = chunk.Transform();
        Affine3 toBlock = chunk.Transform();
        if (count == 2)
        {
            (Vec2 a, Vec2 b) = (points[0], points[1]);
            points = [a, new(b.X, a.Y), b, new(a.X, b.Y)];
        }

        bool isKnown = points.Length > 2 && !chunk.IsShort && state.Clips < MaxTransforms;
        Affine3 map = default;
        if (isKnown && toPlane.IsIdentity)
        {
            Affine3 plane = Ocs.ToWorld(normal);
            map = plane * Affine3.Translation(new Vec3(0, 0, Vec3.Dot(plane.AxisZ, origin)));
        }
        else if (isKnown && (isKnown = toPlane.TryInvert(out Affine3 fromPlane)))
        {
            map = toBlock * fromPlane;
        }

        map = state.Map * map;
        Vec3[] corners = Array.ConvertAll(points, point => map.Point(new Vec3(point.X, point.Y, 0)));
        if (!isKnown || !Array.TrueForAll(corners, static corner => corner.IsFinite))
        {
            state.SkippedClips++;
            return;
        }

        state.Clips++;
        state.Sink.StartClip(corners);
    }

    private static void PopClip(State state)
    {
        if (state.SkippedClips > 0)
        {
            state.SkippedClips--;
        }
        else if (state.Clips > 0)
        {
            state.Clips--;
            state.Sink.EndClip();
        }
    }

    // The highest byte tells what the others are.
    private static ShapeTraits WithColor(in ShapeTraits traits, uint value) => (value >> 24) switch
    {
        0xc1 => traits with { Color = ByBlock, TrueColor = ShapeTraits.ByEntity },
        0xc2 => traits with { TrueColor = (int)(value & 0xffffff) },
        0xc3 => traits with { Color = (int)(value & 0xff), TrueColor = ShapeTraits.ByEntity },
        _ => traits with { Color = ByLayer, TrueColor = ShapeTraits.ByEntity },
    };

    private static bool Circle(ref ChunkReader chunk, State state)
    {
        Vec3 center = chunk.Vector();
        double radius = chunk.Double();
        Affine3 plane = PlaneAt(center, chunk.Vector());
        return Arc(new PlanarArc(state.Map * plane, default, radius, 0, Math.Tau) { IsCircle = true }, state);
    }

    private static bool Arc(ref ChunkReader chunk, State state)
    {
        Vec3 center = chunk.Vector();
        double radius = chunk.Double();
        Vec3 normal = chunk.Vector().Unit();
        Vec3 start = chunk.Vector().Unit();
        double sweep = chunk.Double();
        var plane = new Affine3(start, Vec3.Cross(normal, start), normal, center);
        return Arc(new PlanarArc(state.Map * plane, default, radius, 0, sweep), state);
    }

    private static bool Arc(PlanarArc arc, State state)
    {
        bool isUsable = arc.Plane.IsFinite && double.IsFinite(arc.Radius) && double.IsFinite(arc.Sweep)
            && Math.Abs(arc.Sweep) <= 2 * Math.Tau;
        if (isUsable)
        {
            state.Sink.Arc(arc with { Thickness = state.Thickness });
        }

        return isUsable;
    }

    private static bool ArcThrough(Vec3 first, Vec3 second, Vec3 third, bool isCircle, State state)
    {
        // The centre is where the bisectors of two chords meet, in the plane of the points.
        Vec3 a = second - first;
        Vec3 b = third - first;
        Vec3 normal = Vec3.Cross(a, b);
        double area = Vec3.Dot(normal, normal);
        if (!(area > 0) || !double.IsFinite(area))
        {
            return Line([first, second, third], false, state);
        }

        Vec3 toCenter = ((Vec3.Cross(b, normal) * -Vec3.Dot(a, a)) + (Vec3.Cross(a, normal) * Vec3.Dot(b, b)))
            * (-1 / (2 * area));
        Vec3 x = (toCenter * -1).Unit();
        Vec3 z = normal.Unit();
        Vec3 y = Vec3.Cross(z, x);
        Vec3 center = first + toCenter;
        double sweep = Math.Atan2(Vec3.Dot(third - center, y), Vec3.Dot(third - center, x));
        var plane = new Affine3(x, y, z, center);
        return Arc(
            new PlanarArc(
                state.Map * plane, default, toCenter.Length, 0,
                isCircle ? Math.Tau : sweep > 0 ? sweep : sweep + Math.Tau)
            { IsCircle = isCircle },
            state);
    }

    private static bool Line(Vec3[] points, bool closed, State state)
    {
        for (int i = 0; i < points.Length; i++)
        {
            points[i] = state.Map.Point(points[i]);
            if (!points[i].IsFinite)
            {
                return false;
            }
        }

        if (closed && state.IsFilled && points.Length > 2)
        {
            state.Sink.FilledPolygon(points);
        }
        else if (points.Length > 1)
        {
            state.Sink.Polyline(points, closed);
        }

        return points.Length > 1;
    }

    private static bool Infinite(Vec3 from, Vec3 other, bool bothWays, State state)
    {
        Vec3 start = state.Map.Point(from);
        Vec3 way = state.Map.Point(other) - start;
        bool isUsable = start.IsFinite && way.IsFinite && way.Length > 0;
        if (isUsable)
        {
            state.Sink.InfiniteLine(start, way.Unit(), bothWays);
        }

        return isUsable;
    }

    private static bool Mesh(ref ChunkReader chunk, State state)
    {
        int rows = chunk.Int();
        int columns = chunk.Int();
        if (rows < 2 || columns < 2 || (long)rows * columns * PointSize > chunk.Left)
        {
            return false;
        }

        Vec3[] points = Array.ConvertAll(chunk.Points(rows * columns), state.Map.Point);
        if (!Array.TrueForAll(points, static point => point.IsFinite))
        {
            return false;
        }

        state.Sink.Grid(new PointGrid([.. points], rows, columns, false, false));
        return true;
    }

    private static bool Shell(ref ChunkReader chunk, State state)
    {
        Vec3[] points = Array.ConvertAll(chunk.Points(chunk.Count(PointSize)), state.Map.Point);
        int entries = chunk.Count(sizeof(int));
        var faces = new FaceSet([.. points]);
        int edges = 0;
        for (int i = 0; i < entries;)
        {
            // A hole has a negative count; it is drawn as a face of its own.
            int count = Math.Abs((long)chunk.Int()) is var size && size <= entries - i - 1 ? (int)size : 0;
            int first = faces.Corners.Count;
            bool isValid = count > 1;
            for (int corner = 0; corner < count; corner++)
            {
                int index = chunk.Int();
                isValid &= index >= 0 && index < points.Length;
                faces.Corners.Add(index);
            }

            faces.Faces.Add(new FaceCorners(first, isValid ? count : 0, 0));
            edges += count;
            i += 1 + count;
        }

        if (faces.Faces.Count == 0 || !Array.TrueForAll(points, static point => point.IsFinite))
        {
            return false;
        }

        HideEdges(faces, ref chunk, edges);
        state.Sink.Faces(faces);
        return true;
    }

    /// <summary>Reads which edges are hidden, after what else is stored for each edge.</summary>
    private static void HideEdges(FaceSet faces, ref ChunkReader chunk, int edges)
    {
        const int maxMaskBits = 31;
        int flags = chunk.Int();
        if ((flags & HasVisibilities) == 0)
        {
            return;
        }

        foreach (int part in (ReadOnlySpan<int>)[HasColors, HasLayers, HasLineTypes, HasMarkers])
        {
            chunk.Skip((flags & part) != 0 ? (long)edges * sizeof(int) : 0);
        }

        for (int i = 0; i < faces.Faces.Count && !chunk.IsShort; i++)
        {
            FaceCorners face = faces.Faces[i];
            int mask = 0;
            for (int edge = 0; edge < face.Count; edge++)
            {
                mask |= chunk.Int() == 0 && edge < maxMaskBits ? 1 << edge : 0;
            }

            faces.Faces[i] = face with { HiddenEdges = mask };
        }
    }

    private static bool Text(ref ChunkReader chunk, bool isUnicode, State state)
    {
        Affine3 plane = TextPlane(ref chunk);
        var text = new CadText
        {
            TextHeight = chunk.Double(),
            ScaleX = chunk.Double(),
            ObliqueAngle = Angles.Degrees(chunk.Double()),
            DefaultValue = chunk.Text(isUnicode),
        };
        return Text(text, plane, state);
    }

    private static bool FullText(ref ChunkReader chunk, bool isUnicode, State state)
    {
        const int backward = 2;
        const int upsideDown = 4;
        Affine3 plane = TextPlane(ref chunk);
        string content = chunk.Text(isUnicode);
        int length = chunk.Int();
        chunk.Int(); // whether control codes are interpreted
        var text = new CadText
        {
            DefaultValue = length >= 0 && length < content.Length ? content[..length] : content,
            TextHeight = chunk.Double(),
            ScaleX = chunk.Double(),
            ObliqueAngle = Angles.Degrees(chunk.Double()),
        };
        chunk.Double(); // tracking
        text.TextGenerationFlags = (short)((chunk.Int() != 0 ? backward : 0) | (chunk.Int() != 0 ? upsideDown : 0));
        return Text(text, plane, state);
    }

    private static bool Text(CadText text, in Affine3 plane, State state)
    {
        Affine3 map = state.Map * plane;
        bool isUsable = map.IsFinite && text.TextHeight > 0 && double.IsFinite(text.TextHeight + text.ScaleX)
            && double.IsFinite(text.ObliqueAngle);
        if (isUsable)
        {
            state.Sink.Text(new TextLine(text, map, TextRole.Text));
        }

        return isUsable;
    }

    private static Affine3 TextPlane(ref ChunkReader chunk)
    {
        Vec3 start = chunk.Vector();
        Vec3 normal = chunk.Vector().Unit();
        Vec3 along = chunk.Vector().Unit();
        return new Affine3(along, Vec3.Cross(normal, along), normal, start);
    }

    private static bool LightPolyline(ref ChunkReader chunk, State state)
    {
        int size = chunk.Count(1);
        if (PackedPolyline.Read(chunk.Take(size)) is not { } polyline)
        {
            return false;
        }

        state.Sink.Polyline(
            new PlanarPolyline(
                state.Map * Ocs.ToWorld(polyline.Normal), polyline.Elevation, polyline.Thickness, polyline.IsClosed),
            polyline.Vertices);
        return polyline.Vertices.Length > 1;
    }

    private static Affine3 PlaneAt(Vec3 origin, Vec3 normal) => Affine3.Translation(origin) * Ocs.ToWorld(normal);
}
