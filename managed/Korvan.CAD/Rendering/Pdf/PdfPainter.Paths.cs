using System;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Pdf;

/// <content>Paths: to the page, to the precision of its coordinates, and into its content.</content>
internal sealed partial class PdfPainter
{
    /// <summary>Viewers slow down on paths of more segments.</summary>
    private const int MaxSegments = 1000;

    /// <summary>Far outside of any page, and within what viewers count with.</summary>
    private const double MaxCoordinate = 4_000_000;

    /// <summary>The largest real number of archives (ISO 19005-1, 6.1.12).</summary>
    private const double MaxArchiveCoordinate = 32_700;

    private readonly int _decimals;
    private readonly double _precision;
    private readonly double _farthest;
    private PathVerb[] _verbs = new PathVerb[64];
    private long[] _points = new long[256];
    private int _verbCount;
    private Bounds2 _box;
    private bool _pendingStroke;
    private int _pendingSegments;

    /// <summary>The decimals that tell a hundred thousandth of a page apart: on paper, finer than what devices print;
    /// on screens, finer than a pixel at the largest zoom of viewers.</summary>
    private static int DecimalsOf(double side) => side switch
    {
        < 100 => 4,
        < 1000 => 3,
        _ => 2,
    };

    /// <summary>Maps a path to the page; false where it has no segments.</summary>
    private bool Map(ReadOnlySpan<PathVerb> verbs, ReadOnlySpan<double> c, in Affine2 map)
    {
        EnsureRoom(verbs.Length);
        verbs.CopyTo(_verbs);
        _verbCount = verbs.Length;
        double minX = double.PositiveInfinity, minY = minX, maxX = double.NegativeInfinity, maxY = maxX;
        int count = 0;
        foreach (PathVerb verb in verbs)
        {
            count += verb switch { PathVerb.Curve => 6, PathVerb.Close => 0, _ => 2 };
        }

        Span<long> points = _points.AsSpan(0, count);
        for (int i = 0; i + 1 < count; i += 2)
        {
            double u = c[i];
            double v = c[i + 1];
            double x = Math.Clamp((map.Xx * u) + (map.Xy * v) + map.X0, -_farthest, _farthest);
            double y = Math.Clamp((map.Yx * u) + (map.Yy * v) + map.Y0, -_farthest, _farthest);
            minX = Math.Min(minX, x);
            minY = Math.Min(minY, y);
            maxX = Math.Max(maxX, x);
            maxY = Math.Max(maxY, y);
            points[i] = (long)Math.Round(x * _precision);
            points[i + 1] = (long)Math.Round(y * _precision);
        }

        _box = new Bounds2 { MinX = minX, MinY = minY, MaxX = maxX, MaxY = maxY };
        return verbs.Length > 1;
    }

    private void EnsureRoom(int verbs)
    {
        if (_verbs.Length < verbs)
        {
            _verbs = new PathVerb[verbs * 2];
        }

        if (_points.Length < verbs * 6)
        {
            _points = new long[verbs * 12];
        }
    }

    /// <summary>Whether the path that was mapped can show inside the clip.</summary>
    private bool IsVisible(double margin)
    {
        Cover(_box, margin);
        ref Bounds2 clip = ref _state.Clip;
        return _box.MinX - margin <= clip.MaxX && _box.MaxX + margin >= clip.MinX
            && _box.MinY - margin <= clip.MaxY && _box.MaxY + margin >= clip.MinY;
    }

    /// <summary>Writes the path that was mapped. Points that are the same at the precision of the page are written
    /// once, but a stroke keeps one segment, which is a dot. Returns whether anything is left of the path.</summary>
    private bool WritePath(bool isStroke)
    {
        if (_pendingSegments > MaxSegments)
        {
            EndPath();
        }

        int before = _out.Count;
        long startX = 0, startY = 0, lastX = 0, lastY = 0;
        bool isOpen = false;
        int at = 0;
        for (int i = 0; i < _verbCount; i++)
        {
            switch (_verbs[i])
            {
                case PathVerb.Move:
                    (startX, startY) = (lastX, lastY) = (_points[at], _points[at + 1]);
                    isOpen = false;
                    at += 2;
                    break;
                case PathVerb.Line:
                    long x = _points[at];
                    long y = _points[at + 1];
                    at += 2;
                    bool same = x == lastX && y == lastY;
                    bool isDot = isStroke && !isOpen && (i + 1 == _verbCount || _verbs[i + 1] == PathVerb.Move);
                    if (!same || isDot)
                    {
                        Open(ref isOpen, lastX, lastY);
                        Point(x, y).Raw("l\n"u8);
                        (lastX, lastY) = (x, y);
                    }

                    break;
                case PathVerb.Curve:
                    Open(ref isOpen, lastX, lastY);
                    Point(_points[at], _points[at + 1]);
                    Point(_points[at + 2], _points[at + 3]);
                    (lastX, lastY) = (_points[at + 4], _points[at + 5]);
                    Point(lastX, lastY).Raw("c\n"u8);
                    at += 6;
                    break;
                default:
                    Open(ref isOpen, lastX, lastY);
                    _out.Raw("h\n"u8);
                    (lastX, lastY) = (startX, startY);
                    isOpen = false;
                    break;
            }
        }

        _pendingSegments += _verbCount;
        return _out.Count > before;
    }

    private void Open(ref bool isOpen, long x, long y)
    {
        if (!isOpen)
        {
            Point(x, y).Raw("m\n"u8);
            isOpen = true;
        }
    }

    private PdfBuffer Point(long x, long y) =>
        _out.Fixed(x, _decimals).Raw((byte)' ').Fixed(y, _decimals).Raw((byte)' ');

    /// <summary>Paints strokes that were collected in a path.</summary>
    private void EndPath()
    {
        if (_pendingStroke)
        {
            _out.Raw("S\n"u8);
            _pendingStroke = false;
        }

        _pendingSegments = 0;
    }
}
