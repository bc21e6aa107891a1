using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <content>Frames of content of other files and programs.</content>
internal static partial class EntityGeometry
{
    private static void EmitUnderlay(CadUnderlay underlay, IGeometrySink sink)
    {
        if ((underlay.Flags & UnderlayFlags.On) == 0)
        {
            return;
        }

        Affine3 map = underlay.Normal.ToPlane() * Affine3.Translation(underlay.InsertionPoint.ToVec3())
            * Affine3.RotationZ(Angles.Radians(underlay.RotationAngle))
            * Affine3.Scaling(underlay.ScaleX, underlay.ScaleY, underlay.ScaleZ);
        bool hidesInside = (underlay.Flags & UnderlayFlags.ClipInside) != 0;
        sink.Frame(new ContentFrame(Outline(underlay.ClipPoints, map), underlay)
        {
            Hidden = hidesInside ? Outline(underlay.InnerClipPoints, map) : [],
        });
    }

    private static void EmitOleFrame(CadOle2Frame frame, IGeometrySink sink)
    {
        Vec3 upper = frame.UpperLeftPoint.ToVec3();
        Vec3 lower = frame.LowerRightPoint.ToVec3();
        sink.Frame(new ContentFrame(
            [new(upper.X, lower.Y, lower.Z), lower, new(lower.X, upper.Y, upper.Z), upper], frame));
    }

    // Two points are opposite corners of a rectangle.
    private static Vec3[] Outline(IList<Cad2DPoint> points, in Affine3 map)
    {
        List<Vec2> corners = points.ConvertAll(ModelVectors.ToVec2);
        if (corners.Count == 2)
        {
            (Vec2 a, Vec2 b) = (corners[0], corners[1]);
            corners = [a, new Vec2(b.X, a.Y), b, new Vec2(a.X, b.Y)];
        }

        var outline = new Vec3[corners.Count];
        for (int i = 0; i < outline.Length; i++)
        {
            outline[i] = map.Point(new Vec3(corners[i].X, corners[i].Y, 0));
        }

        return outline;
    }
}
