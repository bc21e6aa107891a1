using System;
using System.Collections.Generic;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Raster.Vectorizing;

/// <summary>Traces contours between foreground and background pixels. The foreground lies to the left, so that outlines
/// run counterclockwise where y points up, and holes clockwise. Pixels that touch only at a corner count as
/// connected.</summary>
internal sealed class ContourTracer
{
    // Directions in order of right turns where y points down: east, south, west, north.
    private static readonly int[] StepX = [1, 0, -1, 0];
    private static readonly int[] StepY = [0, 1, 0, -1];

    private readonly ForegroundMask _mask;
    private readonly int _stride;

    /// <summary>For each pixel corner the outgoing edges that are not yet traced, a bit for each direction.</summary>
    private readonly byte[] _edges;

    private ContourTracer(ForegroundMask mask)
    {
        _mask = mask;
        _stride = mask.Width + 1;
        _edges = new byte[_stride * (mask.Height + 1)];
    }

    /// <summary>Returns every contour as pixel corners, y down, without collinear ones.</summary>
    internal static IEnumerable<List<Vec2>> Trace(ForegroundMask mask)
    {
        var tracer = new ContourTracer(mask);
        tracer.FindEdges();
        for (int y = 0; y <= mask.Height; y++)
        {
            for (int x = 0; x <= mask.Width; x++)
            {
                while (tracer._edges[(y * tracer._stride) + x] != 0)
                {
                    yield return tracer.Walk(x, y);
                }
            }
        }
    }

    private void FindEdges()
    {
        const int east = 1, south = 2, west = 4, north = 8;
        ReadOnlySpan<byte> cells = _mask.Cells;
        for (int y = 0; y < _mask.Height; y++)
        {
            for (int x = 0; x < _mask.Width; x++)
            {
                int cell = _mask.At(x, y);
                if (cells[cell] == 0)
                {
                    continue;
                }

                // Around a pixel with the foreground on the left where y points up: down its left side, and so on.
                int corner = (y * _stride) + x;
                _edges[corner] |= cells[cell - 1] == 0 ? (byte)south : (byte)0;
                _edges[corner + _stride] |= cells[cell + _mask.Stride] == 0 ? (byte)east : (byte)0;
                _edges[corner + _stride + 1] |= cells[cell + 1] == 0 ? (byte)north : (byte)0;
                _edges[corner + 1] |= cells[cell - _mask.Stride] == 0 ? (byte)west : (byte)0;
            }
        }
    }

    private List<Vec2> Walk(int x, int y)
    {
        List<Vec2> corners = [];
        (int startX, int startY) = (x, y);
        int direction = -1;
        do
        {
            ref byte edges = ref _edges[(y * _stride) + x];
            int next = Choose(edges, direction);
            if (next != direction)
            {
                corners.Add(new Vec2(x, y));
            }

            edges &= (byte)~(1 << next);
            (x, y, direction) = (x + StepX[next], y + StepY[next], next);
        }
        while (x != startX || y != startY);
        return corners;
    }

    /// <summary>Returns the next direction. Where two pixels touch at a corner, a turn away from the foreground
    /// connects them.</summary>
    private static int Choose(byte edges, int direction)
    {
        if (direction < 0)
        {
            return int.TrailingZeroCount(edges);
        }

        // A right turn where y points down leads along the other pixel.
        foreach (int turn in (ReadOnlySpan<int>)[1, 0, 3])
        {
            int next = (direction + turn) % 4;
            if ((edges & (1 << next)) != 0)
            {
                return next;
            }
        }

        throw new InvalidOperationException("A contour is not closed.");
    }
}
