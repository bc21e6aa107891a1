using System;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Gdi;

namespace Korvan.CAD.Rendering.Scene;

/// <content>Frames of underlays and embedded documents, preview images, and symbols of shape files.</content>
internal sealed partial class SceneBuilder
{
    private const string ContentOf = "content of ";
    private const string OnlyPlus = ", whose preview has EMF+ records alone";
    private const string BitmapExtension = ".bmp";

    void IGeometrySink.Frame(in ContentFrame frame)
    {
        CadEmbeddedImage? preview = frame.Source is CadOle2Frame document ? document.GetPreview() : null;
        if (preview is not null && frame.Corners.Length == 4 && TryDrawPreview(frame, preview))
        {
            return;
        }

        string reason = preview is not null && WindowsMetafile.HasOnlyPlusRecords(preview.Data) ? OnlyPlus : "";
        List.Skip(ContentOf + frame.Source.TypeNameText + reason);
        if (frame.Corners.Length < 2)
        {
            return;
        }

        PathBuffer path = _canvas.NewPath();
        AddRing(path, frame.Corners);
        if (frame.Hidden.Length > 2)
        {
            AddRing(path, frame.Hidden);
        }

        _canvas.Stroke(_current.Pen);
    }

    void IGeometrySink.StartClip(ReadOnlySpan<Vec3> corners)
    {
        AddRing(_canvas.NewPath(), corners.ToArray());
        List.PushClip(_canvas.Path, evenOdd: true);
    }

    void IGeometrySink.EndClip() => List.PopClip();

    void IGeometrySink.Shape(CadShape shape, Vec3 at)
    {
        if ((_tables.Shapes.Find(shape.ShapeName) ?? _canvas.Engine.FindSymbol(shape.ShapeName)) is not { } strokes)
        {
            List.Skip(shape.TypeNameText + DrawingList.MissingFile);
            return;
        }

        Affine3 map = _current.Context.Map * Affine3.Translation(at) * PlaneOf(shape)
            * Affine3.RotationZ(Angles.Radians(shape.RotationAngle))
            * Affine3.Scaling(shape.Size * shape.ScaleX, shape.Size, 1);
        double slant = Math.Tan(Angles.Radians(shape.ObliqueAngle));
        PathBuffer path = _canvas.NewPath();
        foreach (Vec2[] stroke in strokes)
        {
            for (int i = 0; i < stroke.Length; i++)
            {
                Vec2 point = map.Project(stroke[i].X + (slant * stroke[i].Y), stroke[i].Y, 0);
                if (i == 0)
                {
                    path.MoveTo(point);
                }
                else
                {
                    path.LineTo(point);
                }
            }
        }

        _canvas.Stroke(_current.Pen);
    }

    private static Affine3 PlaneOf(CadShape shape) => shape.ExtrusionDirection.ToPlane();

    /// <summary>Draws the preview of a document: the pixels of a bitmap, or what a metafile draws.</summary>
    private bool TryDrawPreview(in ContentFrame frame, CadEmbeddedImage preview)
    {
        Affine3 map = _current.Context.Map;
        Vec2 origin = map.Project(frame.Corners[0]);
        Vec2 across = map.Project(frame.Corners[1]) - origin;
        Vec2 up = map.Project(frame.Corners[3]) - origin;
        var matrix = new Affine2(across.X, across.Y, up.X, up.Y, origin.X, origin.Y);
        AddRing(_canvas.NewPath(), frame.Corners);
        string name = frame.Source.TypeNameText;
        PlacedImage? Decode(byte[] file) => ImagePixels.Decode(file, name) is { } pixels
            ? new PlacedImage(pixels.Width, pixels.Height, pixels.Pixels, matrix, 1) : null;
        if (preview.FileExtension != BitmapExtension)
        {
            List.PushClip(_canvas.Path, evenOdd: false);
            var target = new GdiTarget(List, _canvas.Engine, _current.Pen.Layer, matrix, Decode);
            bool isDrawn = WindowsMetafile.TryDraw(preview.Data, target);
            List.PopClip();
            return isDrawn;
        }

        if (Decode(preview.Data) is not { } image)
        {
            return false;
        }

        Bounds2 extent = _canvas.Path.Bounds;
        List.Image(image, _current.Pen.Layer, extent);
        return true;
    }

    private void AddRing(PathBuffer path, Vec3[] corners) => AddRing(path, corners, _current.Context.Map);

    private static void AddRing(PathBuffer path, Vec3[] corners, in Affine3 map)
    {
        path.MoveTo(map.Project(corners[0]));
        for (int i = 1; i < corners.Length; i++)
        {
            path.LineTo(map.Project(corners[i]));
        }

        path.Close();
    }
}
