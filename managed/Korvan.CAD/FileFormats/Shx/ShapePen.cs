using System;
using System.Collections.Generic;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.FileFormats.Shx;

/// <summary>The strokes of a shape, where the pen is after them, and whether they are all: what calls itself without
/// end is cut off.</summary>
internal sealed record ShapeStrokes(List<Vec2[]> Strokes, Vec2 End, bool IsWhole);

/// <summary>Carries out the code of shapes: vectors in 16 directions, displacements and arcs.</summary>
/// <param name="codes">The code of all shapes by number.</param>
/// <param name="kind">What the numbers of the shapes mean.</param>
/// <param name="height">The height of characters, which parts of big fonts are scaled from.</param>
internal sealed class ShapePen(
    Dictionary<int, byte[]> codes, ShapeFileKind kind = ShapeFileKind.Shapes, int height = 0)
{
    private const int MaxDepth = 8;
    private const int MaxSteps = 20_000;
    private const int CommandsPerStep = 16;
    private const double MaxCoordinate = 1e6;
    private const int MaxStack = 4;
    private const int ArcSegments = 8;

    private readonly List<Vec2[]> _strokes = [];
    private readonly List<Vec2> _stroke = [];
    private readonly Stack<Vec2> _positions = new();
    private Vec2 _at;
    private double _scale = 1;
    private double _stretch = 1;
    private bool _isDown = true;
    private int _steps;

    /// <summary>Draws a shape.</summary>
    internal ShapeStrokes Draw(int number)
    {
        Run(number, 0);
        EndStroke();
        Workload.Step(_steps / CommandsPerStep);
        return new ShapeStrokes(_strokes, _at, _steps < MaxSteps);
    }

    // The components of the 16 directions: the longer one is always 1.
    private static Vec2 Direction(int index)
    {
        ReadOnlySpan<double> steps = [1, 1, 1, 0.5, 0, -0.5, -1, -1, -1, -1, -1, -0.5, 0, 0.5, 1, 1];
        return new Vec2(steps[index], steps[(index + 12) % 16]);
    }

    private void Run(int number, int depth)
    {
        if (depth > MaxDepth || !codes.TryGetValue(number, out byte[]? code))
        {
            return;
        }

        int i = 0;
        while (i < code.Length && code[i] != 0 && ++_steps < MaxSteps)
        {
            i += Step(code.AsSpan(i), depth);
        }
    }

    // Returns how many bytes the command takes; one that is cut short takes the rest.
    private int Step(ReadOnlySpan<byte> code, int depth)
    {
        ReadOnlySpan<byte> arguments = code[1..];
        int needed = code[0] switch
        {
            3 or 4 or 7 => 1,
            8 or 0x0A => 2,
            0x0B => 5,
            0x0C => 3,
            _ => 0,
        };
        if (arguments.Length < needed)
        {
            return code.Length;
        }

        switch (code[0])
        {
            case 1 or 2:
                SetPen(code[0] == 1);
                return 1;
            case 3 or 4:
                _scale = code[0] == 4 ? _scale * arguments[0] : _scale / Math.Max((int)arguments[0], 1);
                return 2;
            case 5 or 6:
                PushOrPop(code[0] == 5);
                return 1;
            case 7:
                return 1 + Part(arguments, depth);
            case 9 or 0x0D:
                return 1 + Several(arguments, code[0] == 9 ? 2 : 3);
            case 0x0E:
                // The next command is for vertical text only.
                return 1 + (arguments.Length > 0 ? Length(arguments) : 0);
            case < 0x0E:
                Curve(code[0], arguments);
                return 1 + needed;
            default:
                MoveBy(Direction(code[0] & 15) * (code[0] >> 4));
                return 1;
        }
    }

    // Numbers of Unicode have two bytes. In big fonts a zero precedes the two bytes of a part, its place, width and
    // height.
    private int Part(ReadOnlySpan<byte> arguments, int depth)
    {
        const int placedLength = 7;
        if (kind == ShapeFileKind.Unicode && arguments.Length >= 2)
        {
            Run((arguments[0] << 8) | arguments[1], depth + 1);
            return 2;
        }

        if (kind != ShapeFileKind.Big || arguments[0] != 0)
        {
            Run(arguments[0], depth + 1);
            return 1;
        }

        if (arguments.Length < placedLength)
        {
            return arguments.Length;
        }

        (double scale, double stretch) = (_scale, _stretch);
        EndStroke();
        _at += new Vec2((sbyte)arguments[3] * stretch, (sbyte)arguments[4]) * scale;
        double size = height > 0 ? height : Math.Max((int)arguments[6], 1);
        _scale = scale * arguments[6] / size;
        _stretch = stretch * arguments[5] / Math.Max((int)arguments[6], 1);
        Run((arguments[1] << 8) | arguments[2], depth + 1);
        (_scale, _stretch) = (scale, stretch);
        return placedLength;
    }

    private void Curve(int command, ReadOnlySpan<byte> arguments)
    {
        switch (command)
        {
            case 8:
                MoveBy(new Vec2((sbyte)arguments[0], (sbyte)arguments[1]));
                break;
            case 0x0A:
                OctantArc(arguments[0], (sbyte)arguments[1], 0, 0);
                break;
            case 0x0B:
                OctantArc((256 * arguments[2]) + arguments[3], (sbyte)arguments[4], arguments[0], arguments[1]);
                break;
            case 0x0C:
                Bulge(new Vec2((sbyte)arguments[0], (sbyte)arguments[1]), (sbyte)arguments[2]);
                break;
        }
    }

    // Displacements, with bulges or without, up to a pair of zeros.
    private int Several(ReadOnlySpan<byte> arguments, int size)
    {
        int i = 0;
        while (i + 1 < arguments.Length && (arguments[i] | arguments[i + 1]) != 0)
        {
            if (i + size > arguments.Length || ++_steps >= MaxSteps)
            {
                return arguments.Length;
            }

            Vec2 by = new((sbyte)arguments[i], (sbyte)arguments[i + 1]);
            Bulge(by, size == 3 ? (sbyte)arguments[i + 2] : 0);
            i += size;
        }

        return Math.Min(i + 2, arguments.Length);
    }

    private int Length(ReadOnlySpan<byte> code)
    {
        int size = code[0] switch
        {
            7 when kind == ShapeFileKind.Unicode => 3,
            7 when kind == ShapeFileKind.Big && code.Length > 1 && code[1] == 0 => 8,
            3 or 4 or 7 => 2,
            8 or 0x0A => 3,
            0x0B => 6,
            0x0C => 4,
            _ => 1,
        };
        if (code[0] is not (9 or 0x0D))
        {
            return Math.Min(size, code.Length);
        }

        int step = code[0] == 9 ? 2 : 3;
        int i = 1;
        while (i + 1 < code.Length && (code[i] | code[i + 1]) != 0)
        {
            i += step;
        }

        return Math.Min(i + 2, code.Length);
    }

    private void SetPen(bool down)
    {
        EndStroke();
        _isDown = down;
    }

    private void PushOrPop(bool push)
    {
        if (push && _positions.Count < MaxStack)
        {
            _positions.Push(_at);
        }
        else if (!push && _positions.TryPop(out Vec2 position))
        {
            EndStroke();
            _at = position;
        }
    }

    private void MoveBy(Vec2 by) => MoveTo(_at + (new Vec2(by.X * _stretch, by.Y) * _scale));

    private void MoveTo(Vec2 to)
    {
        if (!(Math.Abs(to.X) < MaxCoordinate) || !(Math.Abs(to.Y) < MaxCoordinate))
        {
            _steps = MaxSteps;
            return;
        }

        if (_isDown)
        {
            if (_stroke.Count == 0)
            {
                _stroke.Add(_at);
            }

            _stroke.Add(to);
        }

        _at = to;
    }

    // A bulge of 127 is a half circle; positive ones run counterclockwise.
    private void Bulge(Vec2 by, int bulge)
    {
        Vec2 chord = new Vec2(by.X * _stretch, by.Y) * _scale;
        double length = Math.Sqrt((chord.X * chord.X) + (chord.Y * chord.Y));
        if (bulge == 0 || length == 0)
        {
            MoveTo(_at + chord);
            return;
        }

        double sweep = 4 * Math.Atan(bulge / 127.0);
        double radius = length / 2 / Math.Sin(sweep / 2);
        Vec2 middle = _at + (chord * 0.5);
        Vec2 center = middle + (chord.Left * (radius * Math.Cos(sweep / 2) / length));
        Arc(center, Math.Atan2(_at.Y - center.Y, _at.X - center.X), sweep);
    }

    // Octants count from 0 at the right, counterclockwise; offsets are 256ths of 45 degrees.
    private void OctantArc(int radius, int octants, int startOffset, int endOffset)
    {
        const double octant = Math.PI / 4;
        bool clockwise = octants < 0;
        int packed = Math.Abs(octants);
        int count = packed & 7;
        double start = (packed >> 4 & 7) * octant;
        double span = count == 0 ? 8 * octant : count * octant;
        double from = startOffset / 256.0 * octant;
        double to = endOffset == 0 ? 0 : octant - (endOffset / 256.0 * octant);
        double sign = clockwise ? -1 : 1;
        double angle = start + (sign * from);
        double sweep = sign * (span - from - to);
        Vec2 center = _at - (new Vec2(Math.Cos(angle), Math.Sin(angle)) * (radius * _scale));
        Arc(center, angle, sweep);
    }

    private void Arc(Vec2 center, double start, double sweep)
    {
        Vec2 arm = _at - center;
        double radius = Math.Sqrt((arm.X * arm.X) + (arm.Y * arm.Y));
        int segments = Math.Max(2, (int)Math.Ceiling(Math.Abs(sweep) / (Math.PI / 4) * ArcSegments));
        for (int i = 1; i <= segments; i++)
        {
            double angle = start + (sweep * i / segments);
            MoveTo(center + (new Vec2(Math.Cos(angle), Math.Sin(angle)) * radius));
        }
    }

    private void EndStroke()
    {
        if (_stroke.Count > 1)
        {
            _strokes.Add([.. _stroke]);
        }

        _stroke.Clear();
    }
}
