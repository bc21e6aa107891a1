using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Wipeout;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Scene;

/// <content>Wipeouts, frames of pictures, and lines without end.</content>
internal sealed partial class SceneBuilder
{
    private const int ShowsImage = 1;
    private const int UsesClipping = 4;

    private void DrawWipeout(CadWipeoutBase wipeout, in Pen pen, BlockContext context)
    {
        AddImageOutline(wipeout.InsertionPoint, wipeout.VectorU, wipeout.VectorV, wipeout.ImageSize, wipeout.ClipBoundaryVertices, context);
        Pen mask = pen;
        mask.Color = style.Background;
        canvas.Fill(mask, evenOdd: true);
        if (tables.Settings.WipeoutFrames)
        {
            canvas.Stroke(pen);
        }
    }

    private void DrawImage(CadRasterImage image, in Pen pen, BlockContext context)
    {
        bool clipped = image.ClippingState != 0 && (image.DisplayFlags & UsesClipping) != 0;
        IList<Cad2DPoint> boundary = clipped ? image.ClipBoundaryVertices : [];
        Picture? picture = (image.DisplayFlags & ShowsImage) == 0 ? null : tables.Pictures.Find(image.ImageDefReference);
        if (picture == null)
        {
            List.Skip(image.TypeNameText + DrawingList.MissingFile);
        }
        else
        {
            AddImageOutline(image.InsertionPoint, image.VectorU, image.VectorV, image.ImageSize, boundary, context);
            Bounds2 extent = canvas.Path.Bounds;
            List.PushClip(canvas.Path, evenOdd: true);
            List.Image(Placed(picture, image, context), pen.Layer, extent);
            List.PopClip();
        }

        if (tables.Settings.ImageFrames)
        {
            AddImageOutline(image.InsertionPoint, image.VectorU, image.VectorV, image.ImageSize, boundary, context);
            canvas.Stroke(pen);
        }
    }

    private static PlacedImage Placed(Picture picture, CadRasterImage image, BlockContext context)
    {
        Vec3 across = context.Map.Vector(V(image.VectorU) * image.ImageSize.X);
        Vec3 up = context.Map.Vector(V(image.VectorV) * image.ImageSize.Y);
        Vec2 origin = context.Map.Project(V(image.InsertionPoint));
        var matrix = new Affine2(across.X, across.Y, up.X, up.Y, origin.X, origin.Y);
        double opacity = 1 - (Math.Clamp((int)image.Fade, 0, 100) / 100.0);
        return new PlacedImage(picture.Width, picture.Height, picture.Pixels, matrix, opacity);
    }

    /// <summary>
    /// The outline in pixels of the image, whose rows run down: pixel (0, 0) has its corner at -0.5 above the last
    /// row. Two points are corners of a rectangle, more are a polygon, none the whole image.
    /// </summary>
    private void AddImageOutline(
        Cad3DPoint origin, Cad3DPoint u, Cad3DPoint v, Cad2DPoint size, IList<Cad2DPoint> boundary,
            BlockContext context)
    {
        var pixels = new Affine3(V(u), -V(v), Vec3.UnitZ, V(origin) + (V(v) * size.Y));
        var path = new PathPen(canvas.NewPath(), context.Map * pixels);
        if (boundary.Count > 2)
        {
            AddPolygon(path, boundary.ConvertAll(p => V(p) + new Vec2(0.5, 0.5)));
            return;
        }

        Bounds2 box = boundary.Count == 2
            ? Bounds2.Of(boundary[0].X + 0.5, boundary[0].Y + 0.5, boundary[1].X + 0.5, boundary[1].Y + 0.5)
            : Bounds2.Of(0, 0, size.X, size.Y);
        AddPolygon(path, [new(box.MinX, box.MinY), new(box.MaxX, box.MinY), new(box.MaxX, box.MaxY), new(box.MinX, box.MaxY)]);
    }

    private static void AddPolygon(in PathPen path, List<Vec2> corners)
    {
        path.MoveTo(corners[0]);
        for (int i = 1; i < corners.Count; i++)
        {
            path.LineTo(corners[i]);
        }

        path.Close();
    }

    /// <summary>
    /// Rays and construction lines are cut at the visible region: at once inside of a viewport, else when the extents
    /// of everything else are known.
    /// </summary>
    private void DrawInfinite(Vec3 from, Vec3 direction, bool bothWays, Pen pen, BlockContext context)
    {
        Vec2 start = context.Map.Project(from);
        Vec2 along = (context.Map.Project(from + direction) - start).Unit();
        if (List.ActiveClip is Bounds2 clip)
        {
            DrawCut(start, along, bothWays, clip, pen);
        }
        else
        {
            infinite.Add(() => DrawCut(start, along, bothWays, InfiniteRegion, pen));
        }
    }

    private Bounds2 InfiniteRegion { get; set; }

    private void FinishInfinite()
    {
        Bounds2 box = List.Bounds;
        InfiniteRegion = box.IsEmpty ? Bounds2.Of(-1, -1, 1, 1) : box;
        foreach (Action draw in infinite)
        {
            draw();
        }

        infinite.Clear();
    }

    // Liang and Barsky's parametric clipping, 1984.
    private void DrawCut(Vec2 start, Vec2 along, bool bothWays, in Bounds2 box, in Pen pen)
    {
        double low = bothWays ? double.NegativeInfinity : 0;
        double high = double.PositiveInfinity;
        bool visible = along != default
            && Cut(along.X, start.X, box.MinX, box.MaxX, ref low, ref high)
            && Cut(along.Y, start.Y, box.MinY, box.MaxY, ref low, ref high)
            && low < high;
        if (visible)
        {
            PathBuffer path = canvas.NewPath();
            path.MoveTo(start + (along * low));
            path.LineTo(start + (along * high));
            canvas.Stroke(pen);
        }
    }

    private static bool Cut(double along, double start, double min, double max, ref double low, ref double high)
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
}
