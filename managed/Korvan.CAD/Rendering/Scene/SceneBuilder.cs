using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AttEntities;
using Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Korvan.CAD.FileFormats.Cad.CadObjects.Wipeout;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Text;

namespace Korvan.CAD.Rendering.Scene;

/// <summary>
/// Walks the entities of a space and puts them on a canvas. Entities without a picture are counted in the list;
/// what would never end (blocks in themselves, arrays of millions) is an error that names its place.
/// </summary>
internal sealed partial class SceneBuilder
{
    private const int MostEntities = 20_000_000;
    private const int CheckpointEvery = 4096;

    private readonly SceneTables tables;
    private readonly RenderStyle style;
    private readonly Canvas canvas;
    private readonly PenResolver pens;
    private readonly List<Action> infinite = [];
    private int drawn;

    private SceneBuilder(SceneTables tables, RenderStyle style, TextEngine engine, bool onPaper)
    {
        this.tables = tables;
        this.style = style;
        canvas = new Canvas(new DrawingList { Ink = style.Ink }, engine) { StyleFont = name => tables.Style(name).Font };
        pens = new PenResolver(tables, style, canvas.List, onPaper);
    }

    private DrawingList List => canvas.List;

    /// <summary>The list of the model, in the plane that the style looks at.</summary>
    internal static DrawingList BuildModel(SceneTables tables, RenderStyle style, TextEngine engine, BlockInfo model)
    {
        var builder = new SceneBuilder(tables, style, engine, onPaper: false);
        builder.DrawSpace(model, new BlockContext { Map = style.ModelView });
        builder.FinishInfinite();
        return builder.List;
    }

    private static Vec3 V(Cad3DPoint p) => new(p.X, p.Y, p.Z);

    private static Vec2 V(Cad2DPoint p) => new(p.X, p.Y);

    private static double Radians(double degrees) => degrees * Math.PI / 180;

    private static Affine3 InObject(BlockContext context, Cad3DPoint extrusion) =>
        extrusion.Is(0, 0, 1) ? context.Map : context.Map * Ocs.ToWorld(V(extrusion));

    private void DrawSpace(BlockInfo block, BlockContext context)
    {
        IReadOnlyList<CadEntityBase> entities = DrawOrder.Sorted(block);
        for (int i = 0; i < entities.Count; i++)
        {
            Draw(entities[i], context);
        }
    }

    private void Draw(CadEntityBase entity, BlockContext context)
    {
        Count();
        LayerInfo layer = pens.LayerOf(entity, context);
        if (entity.Visible != 0)
        {
            return;
        }

        if (entity is CadInsertObject insert)
        {
            DrawInsert(insert, layer, context);
            return;
        }

        if (entity is CadDimensionBase dimension)
        {
            DrawDimension(dimension, layer, context);
            return;
        }

        if (pens.IsVisible(layer, context))
        {
            Pen pen = pens.PenOf(entity, layer, context);
            DrawVisible(entity, pen, layer, context);
        }
    }

    private void DrawVisible(CadEntityBase entity, in Pen pen, LayerInfo layer, BlockContext context)
    {
        switch (entity)
        {
            case CadLine line:
                DrawLine(line, pen, context);
                break;
            case CadLwPolyline polyline:
                DrawLwPolyline(polyline, pen, context);
                break;
            case CadArc arc:
                DrawArc(arc, pen, context);
                break;
            case CadCircle circle:
                DrawCircle(circle, pen, context);
                break;
            case CadAttDef definition:
                DrawAttributeDefinition(definition, pen, context);
                break;
            case CadAttrib attribute:
                DrawAttribute(attribute, pen, context);
                break;
            case CadText text:
                DrawText(text, text.DefaultValue, pen, context);
                break;
            case CadMText text:
                DrawMText(text, pen, layer, context);
                break;
            case CadHatch hatch:
                DrawHatch(hatch, pen, layer, context);
                break;
            case CadSpline spline:
                DrawSpline(spline, pen, context);
                break;
            case CadEllipse ellipse:
                DrawEllipse(ellipse, pen, context);
                break;
            case CadPoint point:
                DrawPoint(point, pen, context);
                break;
            case CadPolylineBase polyline:
                DrawPolyline(polyline, pen, context);
                break;
            case CadSolid solid:
                DrawFilledQuad(solid.FirstPoint, solid.SecondPoint, solid.ThirdPoint, solid.FourthPoint, solid.ExtrusionDirection, pen, context);
                break;
            case CadTrace trace:
                DrawFilledQuad(trace.FirstPoint, trace.SecondPoint, trace.ThirdPoint, trace.FourthPoint, trace.ExtrusionDirection, pen, context);
                break;
            case Cad3DFace face:
                DrawFace(face, pen, context);
                break;
            default:
                DrawRare(entity, pen, layer, context);
                break;
        }
    }

    private void DrawRare(CadEntityBase entity, in Pen pen, LayerInfo layer, BlockContext context)
    {
        switch (entity)
        {
            case CadLeader leader:
                DrawLeader(leader, pen, context);
                break;
            case CadMultiLine line:
                DrawMultiLine(line, pen, layer, context);
                break;
            case CadTolerance tolerance:
                DrawTolerance(tolerance, pen, context);
                break;
            case CadWipeoutBase wipeout:
                DrawWipeout(wipeout, pen, context);
                break;
            case CadRasterImage image:
                DrawImage(image, pen, context);
                break;
            case CadRay ray:
                DrawInfinite(V(ray.FirstPoint), V(ray.UnitDirection), bothWays: false, pen, context);
                break;
            case CadXLine line:
                DrawInfinite(V(line.FirstPoint), V(line.UnitDirection), bothWays: true, pen, context);
                break;
            case CadViewport:
                break;
            default:
                DrawRaw(entity, pen, layer, context);
                break;
        }
    }

    private void Count()
    {
        if (++drawn % CheckpointEvery == 0)
        {
            style.Checkpoint?.Invoke();
        }

        if (drawn > MostEntities)
        {
            throw new RenderException(
                $"The drawing shows more than {MostEntities} entities once its block references are drawn; it is too large to be rendered.");
        }
    }
}
