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
        // TODO new((int)GraphicalPrimitiveElement.DisjointPolyline, "DISJTLINE", static () => new DisjointPolyline()),
        // TODO new((int)GraphicalPrimitiveElement.PolyMarker, "MARKER", static () => new PolyMarker()),
        // TODO new((int)GraphicalPrimitiveElement.Text, "TEXT", static () => new Text()),
        // TODO new((int)GraphicalPrimitiveElement.RestrictedText, "RESTRTEXT", static () => new RestrictedText()),
        // TODO new((int)GraphicalPrimitiveElement.AppendText, "APNDTEXT", static () => new AppendText()),
        // TODO new((int)GraphicalPrimitiveElement.PolygonElement, "POLYGON", static () => new PolygonElement()),
        // TODO new((int)GraphicalPrimitiveElement.PolygonSet, "POLYGONSET", static () => new PolygonSet()),
        // TODO new((int)GraphicalPrimitiveElement.CellArray, "CELLARRAY", static () => new CellArray()),
        // TODO new((int)GraphicalPrimitiveElement.GeneralizedDrawingPrimitive, "GDP", static () => new GeneralizedDrawingPrimitive()),
        // TODO new((int)GraphicalPrimitiveElement.RectangleElement, "RECT", static () => new RectangleElement()),
        // TODO new((int)GraphicalPrimitiveElement.CircleElement, "CIRCLE", static () => new CircleElement()),
        // TODO new((int)GraphicalPrimitiveElement.CircularArc3Point, "ARC3PT", static () => new CircularArc3Point()),
        // TODO new((int)GraphicalPrimitiveElement.CircularArc3PointClose, "ARC3PTCLOSE", static () => new CircularArc3PointClose()),
        // TODO new((int)GraphicalPrimitiveElement.CircularArcCentre, "ARCCTR", static () => new CircularArcCentre()),
        // TODO new((int)GraphicalPrimitiveElement.CircularArcCentreClose, "ARCCTRCLOSE", static () => new CircularArcCentreClose()),
        // TODO new((int)GraphicalPrimitiveElement.EllipseElement, "ELLIPSE", static () => new EllipseElement()),
        // TODO new((int)GraphicalPrimitiveElement.EllipticalArc, "ELLIPARC", static () => new EllipticalArc()),
        // TODO new((int)GraphicalPrimitiveElement.EllipticalArcClose, "ELLIPARCCLOSE", static () => new EllipticalArcClose()),
        // TODO new((int)GraphicalPrimitiveElement.CircularArcCentreReversed, "ARCCTRREV", static () => new CircularArcCentreReversed()),
        // TODO new((int)GraphicalPrimitiveElement.ConnectingEdge, "CONNEDGE", static () => new ConnectingEdge()),
        // TODO new((int)GraphicalPrimitiveElement.HyperbolicArc, "HYPERBARC", static () => new HyperbolicArc()),
        // TODO new((int)GraphicalPrimitiveElement.ParabolicArc, "PARABARC", static () => new ParabolicArc()),
        // TODO new((int)GraphicalPrimitiveElement.NonUniformBSpline, "NUB", static () => new NonUniformBSpline()),
        // TODO new((int)GraphicalPrimitiveElement.NonUniformRationalBSpline, "NURB", static () => new NonUniformRationalBSpline()),
        // TODO new((int)GraphicalPrimitiveElement.PolyBezier, "POLYBEZIER", static () => new PolyBezier()),
        // TODO new((int)GraphicalPrimitiveElement.PolySymbol, "SYMBOL", static () => new PolySymbol()),
        // TODO new((int)GraphicalPrimitiveElement.BitonalTile, "BITONALTILE", static () => new BitonalTile()),
        // TODO new((int)GraphicalPrimitiveElement.Tile, "TILE", static () => new Tile()),
    ];

    /// <summary>Gives a new command for an element, without parameters yet.</summary>
    /// <param name="element">The element.</param>
    /// <exception cref="ArgumentOutOfRangeException">There is no such element.</exception>
    public static Command CreateCommand(GraphicalPrimitiveElement element) => Entry(element).Create();

    /// <summary>Gives the word that stands for an element in clear text.</summary>
    /// <param name="element">The element.</param>
    /// <exception cref="ArgumentOutOfRangeException">There is no such element.</exception>
    public static string GetKeyword(GraphicalPrimitiveElement element) => Entry(element).Keyword;

    private static ElementEntry Entry(GraphicalPrimitiveElement element) =>
        ElementTables.Find(ClassCode.GraphicalPrimitiveElement, (int)element) ?? throw new ArgumentOutOfRangeException(nameof(element));
}
