using System;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Elements;

/// <summary>What is drawn.</summary>
public static class GraphicalPrimitiveElements
{
    internal static readonly ElementEntry[] Table =
    [
        new((int)GraphicalPrimitiveElement.Polyline, "LINE", static () => new Polyline()),
        new((int)GraphicalPrimitiveElement.DisjointPolyline, "DISJTLINE", static () => new DisjointPolyline()),
        new((int)GraphicalPrimitiveElement.PolyMarker, "MARKER", static () => new PolyMarker()),
        new((int)GraphicalPrimitiveElement.Text, "TEXT", static () => new Text()),
        new((int)GraphicalPrimitiveElement.RestrictedText, "RESTRTEXT", static () => new RestrictedText()),
        new((int)GraphicalPrimitiveElement.AppendText, "APNDTEXT", static () => new AppendText()),
        new((int)GraphicalPrimitiveElement.PolygonElement, "POLYGON", static () => new PolygonElement()),
        new((int)GraphicalPrimitiveElement.PolygonSet, "POLYGONSET", static () => new PolygonSet()),
        new((int)GraphicalPrimitiveElement.CellArray, "CELLARRAY", static () => new CellArray()),
        new((int)GraphicalPrimitiveElement.GeneralizedDrawingPrimitive, "GDP", static () => new GeneralizedDrawingPrimitive()),
        new((int)GraphicalPrimitiveElement.RectangleElement, "RECT", static () => new RectangleElement()),
        new((int)GraphicalPrimitiveElement.CircleElement, "CIRCLE", static () => new CircleElement()),
        new((int)GraphicalPrimitiveElement.CircularArc3Point, "ARC3PT", static () => new CircularArc3Point()),
        new((int)GraphicalPrimitiveElement.CircularArc3PointClose, "ARC3PTCLOSE", static () => new CircularArc3PointClose()),
        new((int)GraphicalPrimitiveElement.CircularArcCentre, "ARCCTR", static () => new CircularArcCentre()),
        new((int)GraphicalPrimitiveElement.CircularArcCentreClose, "ARCCTRCLOSE", static () => new CircularArcCentreClose()),
        new((int)GraphicalPrimitiveElement.EllipseElement, "ELLIPSE", static () => new EllipseElement()),
        new((int)GraphicalPrimitiveElement.EllipticalArc, "ELLIPARC", static () => new EllipticalArc()),
        new((int)GraphicalPrimitiveElement.EllipticalArcClose, "ELLIPARCCLOSE", static () => new EllipticalArcClose()),
        new((int)GraphicalPrimitiveElement.CircularArcCentreReversed, "ARCCTRREV", static () => new CircularArcCentreReversed()),
        new((int)GraphicalPrimitiveElement.ConnectingEdge, "CONNEDGE", static () => new ConnectingEdge()),
        new((int)GraphicalPrimitiveElement.HyperbolicArc, "HYPERBARC", static () => new HyperbolicArc()),
        new((int)GraphicalPrimitiveElement.ParabolicArc, "PARABARC", static () => new ParabolicArc()),
        new((int)GraphicalPrimitiveElement.NonUniformBSpline, "NUB", static () => new NonUniformBSpline()),
        new((int)GraphicalPrimitiveElement.NonUniformRationalBSpline, "NURB", static () => new NonUniformRationalBSpline()),
        new((int)GraphicalPrimitiveElement.PolyBezier, "POLYBEZIER", static () => new PolyBezier()),
        new((int)GraphicalPrimitiveElement.PolySymbol, "SYMBOL", static () => new PolySymbol()),
        new((int)GraphicalPrimitiveElement.BitonalTile, "BITONALTILE", static () => new BitonalTile()),
        new((int)GraphicalPrimitiveElement.Tile, "TILE", static () => new Tile()),
    ];

    /// <summary>Gives a new command for an element, without parameters yet.</summary>
    /// <param name="element">The element.</param>
    /// <returns>A new command for an element, without parameters yet.</returns>
    /// <exception cref="ArgumentOutOfRangeException">There is no such element.</exception>
    public static Command CreateCommand(GraphicalPrimitiveElement element) => Entry(element).Create();

    /// <summary>Gives the word that stands for an element in clear text.</summary>
    /// <param name="element">The element.</param>
    /// <returns>The word that stands for an element in clear text.</returns>
    /// <exception cref="ArgumentOutOfRangeException">There is no such element.</exception>
    public static string GetKeyword(GraphicalPrimitiveElement element) => Entry(element).Keyword;

    private static ElementEntry Entry(GraphicalPrimitiveElement element) =>
        ElementTables.Get(ClassCode.GraphicalPrimitiveElement, element);
}
