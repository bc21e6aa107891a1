using System;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AttEntities;
using Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>Entities in a line of text: what they are, on which layer, and where.</summary>
internal static class EntityText
{
    private const int MaxTextLength = 40;

    internal static string Of(CadEntityBase entity) => entity is CadBlockEntity block
        ? $"BLOCK {block.Name} with {Count(block.Entities.Count, "entity", "entities")}"
        : $"{entity.DxfName} on {entity.LayerName}{Details(entity)}";

    private static string Details(CadEntityBase entity) => entity switch
    {
        CadLine line => $" from {line.FirstPoint} to {line.SecondPoint}",
        CadArc arc =>
            FormattableString.Invariant(
                $" around {arc.CenterPoint}, radius {arc.Radius}, {arc.StartAngle}° to {arc.EndAngle}°"),
        CadCircle circle => FormattableString.Invariant($" around {circle.CenterPoint}, radius {circle.Radius}"),
        CadEllipse ellipse => $" around {ellipse.CenterPoint}",
        CadPoint point => $" at {point.CenterPoint}",
        CadAttrib attribute => $" {attribute.DefinitionTagString} = {Quoted(attribute.DefaultValue)}",
        CadAttDef definition => $" {definition.DefinitionTagString} = {Quoted(definition.DefaultValue)}",
        CadText text => $" {Quoted(text.DefaultValue)} at {text.FirstAlignment}",
        CadMText text => $" {Quoted(text.Text)} at {text.InsertionPoint}",
        CadInsertObject insert => $" of {insert.Name} at {insert.InsertionPoint}",
        CadLwPolyline line => $" with {Count(line.Coordinates.Count, "vertex", "vertices")}",
        CadPolylineBase line => $" with {Count(line.Vertices.Count, "vertex", "vertices")}",
        CadVertexBase vertex => $" at {vertex.LocationPoint}",
        CadSpline { FitPoints.Count: > 0 } spline => $" with {Count(spline.FitPoints.Count, "point", "points")}",
        CadSpline spline => $" with {Count(spline.ControlPoints.Count, "point", "points")}",
        CadHatch hatch => $" of {hatch.PatternName} with {Count(hatch.BoundaryPaths.Count, "boundary", "boundaries")}",
        CadLeader leader => $" with {Count(leader.Coordinates.Count, "vertex", "vertices")}",
        CadMultiLine line => $" with {Count(line.Vertices.Count, "vertex", "vertices")}",
        CadDimensionBase dimension =>
            FormattableString.Invariant($" of {dimension.ActualMeasurement} at {dimension.DefinitionPoint}"),
        CadViewport viewport =>
            FormattableString.Invariant($" of {viewport.Width} × {viewport.Height} around {viewport.CenterPoint}"),
        Cad3DFace face => $" from {face.FirstPoint} to {face.ThirdPoint}",
        CadSolid solid => $" from {solid.FirstPoint} to {solid.ThirdPoint}",
        CadTrace trace => $" from {trace.FirstPoint} to {trace.ThirdPoint}",
        CadBaseInfinityEntity line => $" from {line.FirstPoint} along {line.UnitDirection}",
        CadRasterImage image => $" at {image.InsertionPoint}",
        CadShape shape => $" {shape.ShapeName} at {shape.InsertionPoint}",
        CadTolerance tolerance => $" at {tolerance.InsertionPoint}",
        _ => "",
    };

    private static string Count(int count, string one, string many) =>
        FormattableString.Invariant($"{count} {(count == 1 ? one : many)}");

    private static string Quoted(string? text) => text is null ? "''"
        : text.Length <= MaxTextLength ? $"'{text}'" : $"'{text.AsSpan(0, MaxTextLength)}…'";
}
