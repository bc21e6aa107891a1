using Korvan.CAD.Binding;

namespace Korvan.CAD.FileFormats.Cgm.Elements;

/// <summary>The graphical primitive elements, by their numbers in binary files (ISO/IEC 8632-3, clause 8).</summary>
[PythonEnum(EnumKind.Integer)]
public enum GraphicalPrimitiveElement
{
    /// <summary>The element "polyline", in clear text LINE.</summary>
    Polyline = 1,

    /// <summary>The element "disjoint polyline", in clear text DISJTLINE.</summary>
    DisjointPolyline = 2,

    /// <summary>The element "poly marker", in clear text MARKER.</summary>
    PolyMarker = 3,

    /// <summary>The element "text", in clear text TEXT.</summary>
    Text = 4,

    /// <summary>The element "restricted text", in clear text RESTRTEXT.</summary>
    RestrictedText = 5,

    /// <summary>The element "append text", in clear text APNDTEXT.</summary>
    AppendText = 6,

    /// <summary>The element "polygon element", in clear text POLYGON.</summary>
    PolygonElement = 7,

    /// <summary>The element "polygon set", in clear text POLYGONSET.</summary>
    PolygonSet = 8,

    /// <summary>The element "cell array", in clear text CELLARRAY.</summary>
    CellArray = 9,

    /// <summary>The element "generalized drawing primitive", in clear text GDP.</summary>
    GeneralizedDrawingPrimitive = 10,

    /// <summary>The element "rectangle element", in clear text RECT.</summary>
    RectangleElement = 11,

    /// <summary>The element "circle element", in clear text CIRCLE.</summary>
    CircleElement = 12,

    /// <summary>The element "circular arc3 point", in clear text ARC3PT.</summary>
    CircularArc3Point = 13,

    /// <summary>The element "circular arc3 point close", in clear text ARC3PTCLOSE.</summary>
    CircularArc3PointClose = 14,

    /// <summary>The element "circular arc centre", in clear text ARCCTR.</summary>
    CircularArcCentre = 15,

    /// <summary>The element "circular arc centre close", in clear text ARCCTRCLOSE.</summary>
    CircularArcCentreClose = 16,

    /// <summary>The element "ellipse element", in clear text ELLIPSE.</summary>
    EllipseElement = 17,

    /// <summary>The element "elliptical arc", in clear text ELLIPARC.</summary>
    EllipticalArc = 18,

    /// <summary>The element "elliptical arc close", in clear text ELLIPARCCLOSE.</summary>
    EllipticalArcClose = 19,

    /// <summary>The element "circular arc centre reversed", in clear text ARCCTRREV.</summary>
    CircularArcCentreReversed = 20,

    /// <summary>The element "connecting edge", in clear text CONNEDGE.</summary>
    ConnectingEdge = 21,

    /// <summary>The element "hyperbolic arc", in clear text HYPERBARC.</summary>
    HyperbolicArc = 22,

    /// <summary>The element "parabolic arc", in clear text PARABARC.</summary>
    ParabolicArc = 23,

    /// <summary>The element "non uniform bspline", in clear text NUB.</summary>
    NonUniformBSpline = 24,

    /// <summary>The element "non uniform rational bspline", in clear text NURB.</summary>
    NonUniformRationalBSpline = 25,

    /// <summary>The element "poly bezier", in clear text POLYBEZIER.</summary>
    PolyBezier = 26,

    /// <summary>The element "poly symbol", in clear text SYMBOL.</summary>
    PolySymbol = 27,

    /// <summary>The element "bitonal tile", in clear text BITONALTILE.</summary>
    BitonalTile = 28,

    /// <summary>The element "tile", in clear text TILE.</summary>
    Tile = 29,
}

/// <summary>The commands and keywords of graphical primitive elements.</summary>
public static partial class GraphicalPrimitiveElements;
