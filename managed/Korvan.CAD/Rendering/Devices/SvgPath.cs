using System;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Devices;

/// <summary>Writes path data in the shortest commands: all but the first point are relative to the one before, in whole
/// thousandths, so that no error adds up.</summary>
internal sealed class SvgPath(MarkupWriter writer)
{
    /// <summary>Far outside of any page; renderers count in fixed or single precision.</summary>
    private const double FarAway = 4_000_000;

    private long _x;
    private long _y;
    private long _startX;
    private long _startY;
    private byte _command;
    private bool _isMoved;
    private bool _hasSegment;
    private bool _isEmpty = true;

    /// <summary>Begins the data of another path.</summary>
    internal void Begin() => (_command, _isMoved, _hasSegment, _isEmpty) = (0, false, false, true);

    /// <summary>Adds a path, mapped to the page.</summary>
    internal void Add(ReadOnlySpan<PathVerb> verbs, ReadOnlySpan<double> coords, in Affine2 map)
    {
        int at = 0;
        foreach (PathVerb verb in verbs)
        {
            switch (verb)
            {
                case PathVerb.Move:
                    (_startX, _startY) = Place(coords, at, map);
                    (_isMoved, _hasSegment) = (true, false);
                    at += 2;
                    break;
                case PathVerb.Line:
                    EnsureStart(coords, at, map);
                    LineTo(Place(coords, at, map));
                    at += 2;
                    break;
                case PathVerb.Curve:
                    EnsureStart(coords, at, map);
                    CurveTo(Place(coords, at, map), Place(coords, at + 2, map), Place(coords, at + 4, map));
                    at += 6;
                    break;
                default:
                    Close();
                    break;
            }
        }
    }

    private static (long X, long Y) Place(ReadOnlySpan<double> c, int at, in Affine2 map)
    {
        double x = (map.Xx * c[at]) + (map.Xy * c[at + 1]) + map.X0;
        double y = (map.Yx * c[at]) + (map.Yy * c[at + 1]) + map.Y0;
        return (MarkupWriter.ToThousandths(Math.Clamp(x, -FarAway, FarAway)),
            MarkupWriter.ToThousandths(Math.Clamp(y, -FarAway, FarAway)));
    }

    /// <summary>Writes the move before the first segment of a subpath. A path without one begins at its first
    /// point.</summary>
    private void EnsureStart(ReadOnlySpan<double> coords, int at, in Affine2 map)
    {
        if (!_isMoved)
        {
            if (!_isEmpty)
            {
                return;
            }

            (_startX, _startY) = Place(coords, at, map);
        }

        (long fromX, long fromY) = _isEmpty ? (0, 0) : (_x, _y);
        writer.Raw(_isEmpty ? (byte)'M' : (byte)'m');
        writer.Thousandths(_startX - fromX);
        Next(_startY - fromY);

        // The pairs that follow those of a relative move are lines.
        _command = _isEmpty ? (byte)'M' : (byte)'l';
        (_x, _y, _isMoved, _isEmpty) = (_startX, _startY, false, false);
    }

    private void LineTo((long X, long Y) to)
    {
        (long dx, long dy) = (to.X - _x, to.Y - _y);
        if (dx == 0 && dy == 0)
        {
            if (!_hasSegment)
            {
                First('h', 0); // a dot
            }
        }
        else if (dy == 0)
        {
            First('h', dx);
        }
        else if (dx == 0)
        {
            First('v', dy);
        }
        else
        {
            First('l', dx);
            Next(dy);
        }

        (_x, _y) = to;
        _hasSegment = true;
    }

    private void CurveTo((long X, long Y) one, (long X, long Y) two, (long X, long Y) to)
    {
        First('c', one.X - _x);
        Next(one.Y - _y);
        Next(two.X - _x);
        Next(two.Y - _y);
        Next(to.X - _x);
        Next(to.Y - _y);
        (_x, _y) = to;
        _hasSegment = true;
    }

    private void Close()
    {
        if (!_isEmpty && !_isMoved)
        {
            writer.Raw((byte)'z');
            _command = (byte)'z';
            (_x, _y) = (_startX, _startY);
        }
    }

    private void First(char command, long value)
    {
        if (_command == command)
        {
            Next(value);
            return;
        }

        writer.Raw((byte)command);
        _command = (byte)command;
        writer.Thousandths(value);
    }

    /// <summary>Writes a further number: a sign separates as well as a space.</summary>
    private void Next(long value)
    {
        if (value >= 0)
        {
            writer.Raw((byte)' ');
        }

        writer.Thousandths(value);
    }
}
