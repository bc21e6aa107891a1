using System;
using System.Collections.Generic;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Wipeout;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Scene;

/// <content>Wipeouts, images with their frames, and infinite lines.</content>
internal sealed partial class SceneBuilder
{
    private const int ShowsImage = 1;
    private const int UsesClipping = 4;

    void IGeometrySink.Image(in ImageFrame frame)
    {
        if (frame.Source is CadWipeoutBase wipeout)
        {
            DrawWipeout(frame, wipeout);
        }
        else if (frame.Source is CadRasterImage image)
        {
            DrawImage(frame, image);
        }
    }

    private void DrawWipeout(in ImageFrame frame, CadWipeoutBase wipeout)
    {
        AddImageOutline(frame, wipeout.ClipBoundaryVertices, wipeout.ClipMode != 0);
        Pen mask = _current.Pen;
        mask.Color = _style.Background;
        mask.Plot = null;
        _canvas.Fill(mask, evenOdd: true);
        if (_tables.Settings.WipeoutFrames)
        {
            _canvas.Stroke(_current.Pen);
        }
    }

    private void DrawImage(in ImageFrame frame, CadRasterImage image)
    {
        Pen pen = _current.Pen;
        bool clipped = image.ClippingState != 0 && (image.DisplayFlags & UsesClipping) != 0;
        IList<Cad2DPoint> boundary = clipped ? image.ClipBoundaryVertices : [];
        bool hidesInside = image.ClipMode != 0;
        bool isShown = (image.DisplayFlags & ShowsImage) != 0;
        ImagePixels? pixels = isShown ? _tables.Images.Find(image.ImageDefReference) : null;
        if (pixels == null)
        {
            List.Skip(image.TypeNameText + DrawingList.MissingFile);
        }
        else
        {
            AddImageOutline(frame, boundary, hidesInside);
            Bounds2 extent = _canvas.Path.Bounds;
            List.PushClip(_canvas.Path, evenOdd: true);
            List.Image(Placed(pixels, frame, image.Fade), pen.Layer, extent);
            List.PopClip();
        }

        if (_tables.Settings.ImageFrames)
        {
            AddImageOutline(frame, boundary, hidesInside);
            _canvas.Stroke(pen);
        }
    }

    private PlacedImage Placed(ImagePixels pixels, in ImageFrame frame, double fade)
    {
        Affine3 map = _current.Context.Map;
        Vec3 across = map.Vector(frame.Across);
        Vec3 up = map.Vector(frame.Up);
        Vec2 origin = map.Project(frame.Corner);
        var matrix = new Affine2(across.X, across.Y, up.X, up.Y, origin.X, origin.Y);
        double opacity = 1 - (Math.Clamp((int)fade, 0, 100) / 100.0);
        return new PlacedImage(pixels.Width, pixels.Height, pixels.Pixels, matrix, opacity);
    }

    /// <summary>
    /// The outline in pixels of the image, whose rows run down: pixel (0, 0) has its corner at -0.5 above the last
    /// row. Two points are corners of a rectangle, more are a polygon, none the whole image. What a boundary
    /// hides is a hole in the whole image.
    /// </summary>
    private void AddImageOutline(in ImageFrame frame, IList<Cad2DPoint> boundary, bool hidesInside)
    {
        var pixels = new Affine3(frame.U, -frame.V, Vec3.UnitZ, frame.Corner + frame.Up);
        var path = new PathPen(_canvas.NewPath(), _current.Context.Map * pixels);
        Bounds2 whole = Bounds2.Of(0, 0, frame.Size.X, frame.Size.Y);
        if (hidesInside && boundary.Count > 1)
        {
            AddBox(path, whole);
        }

        if (boundary.Count > 2)
        {
            AddPolygon(path, boundary.ConvertAll(p => p.ToVec2() + new Vec2(0.5, 0.5)));
            return;
        }

        Bounds2 box = boundary.Count == 2
            ? Bounds2.Of(boundary[0].X + 0.5, boundary[0].Y + 0.5, boundary[1].X + 0.5, boundary[1].Y + 0.5)
            : whole;
        AddBox(path, box);
    }

    private static void AddBox(in PathPen path, in Bounds2 box) => AddPolygon(
        path, [new(box.MinX, box.MinY), new(box.MaxX, box.MinY), new(box.MaxX, box.MaxY), new(box.MinX, box.MaxY)]);

    private static void AddPolygon(in PathPen path, List<Vec2> corners)
    {
        path.MoveTo(corners[0]);
        for (int i = 1; i < corners.Count; i++)
        {
            path.LineTo(corners[i]);
        }

        path.Close();
    }

    /// <summary>Clips rays and construction lines to the visible region: at once in a viewport, else when the
    /// extents of everything else are known.</summary>
    void IGeometrySink.InfiniteLine(Vec3 from, Vec3 direction, bool bothWays)
    {
        (Pen pen, _, BlockContext context, _) = _current;
        Vec2 start = context.Map.Project(from);
        var line = new InfiniteLine(start, (context.Map.Project(from + direction) - start).Unit(), bothWays, pen);
        if (List.ActiveClip is Bounds2 clip)
        {
            DrawClipped(line, clip);
        }
        else
        {
            _infinite.Add(line);
        }
    }

    private void FinishInfinite()
    {
        Bounds2 region = InfiniteRegion();
        foreach (InfiniteLine line in _infinite)
        {
            DrawClipped(line, region);
        }

        _infinite.Clear();
    }

    // Where nothing else has an extent, the lines are shown around where they start.
    private Bounds2 InfiniteRegion()
    {
        Bounds2 box = List.Bounds;
        if (box.IsEmpty)
        {
            _infinite.ForEach(line => box.Add(line.Start.X, line.Start.Y));
        }

        if (box.IsEmpty || (box.Width > 0 && box.Height > 0))
        {
            return box;
        }

        double side = Math.Max(box.Width, box.Height);
        double margin = side > 0 ? side / 2 : 1;
        return Bounds2.Of(box.MinX - margin, box.MinY - margin, box.MaxX + margin, box.MaxY + margin);
    }

    // Liang and Barsky's parametric clipping, 1984.
    private void DrawClipped(in InfiniteLine line, in Bounds2 box)
    {
        (Vec2 start, Vec2 along, bool bothWays, Pen pen) = line;
        double low = bothWays ? double.NegativeInfinity : 0;
        double high = double.PositiveInfinity;
        bool visible = along != default
            && TryClip(along.X, start.X, box.MinX, box.MaxX, ref low, ref high)
            && TryClip(along.Y, start.Y, box.MinY, box.MaxY, ref low, ref high)
            && low < high;
        if (visible)
        {
            PathBuffer path = _canvas.NewPath();
            path.MoveTo(start + (along * low));
            path.LineTo(start + (along * high));
            _canvas.Stroke(pen);
        }
    }

    private static bool TryClip(double along, double start, double min, double max, ref double low, ref double high)
    {
        if (Math.Abs(along) < 1e-12)
        {
            return start >= min && start <= max;
        }

        double a = (min - start) / along;
        double b = (max - start) / along;
        low = Math.Max(low, Math.Min(a, b));
        high = Math.Min(high, Math.Max(a, b));
        return true;
    }

    private readonly record struct InfiniteLine(Vec2 Start, Vec2 Along, bool BothWays, Pen Pen);
}
