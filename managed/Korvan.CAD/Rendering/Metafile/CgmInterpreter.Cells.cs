using System;
using System.Collections.Generic;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cgm.Classes;
using Korvan.CAD.FileFormats.Cgm.Commands;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Scene;

namespace Korvan.CAD.Rendering.Metafile;

/// <content>Images of cells, whole or in tiles.</content>
internal sealed partial class CgmInterpreter
{
    /// <summary>Cells of one tile; larger tiles are left out rather than allocated.</summary>
    private const long MaxCells = 100_000_000;

    private BeginTileArray? _tiles;
    private int _nextTile;

    private static void AddCells(Dictionary<Type, Action<CgmInterpreter, Command>> d)
    {
        On<CellArray>(d, static (i, x) => i.DrawCells(x));
        On<BeginTileArray>(d, static (i, x) => (i._tiles, i._nextTile) = (x, 0));
        On<BitonalTile>(d, static (i, x) => i.DrawTile(
            x, tile => TileImages.Bitonal(tile, i.ColorOf(x.Background), i.ColorOf(x.Foreground))));
        On<Tile>(d, static (i, x) => i.DrawTile(x, tile => TileImages.Coloured(i.Packed(tile, x), i.CellColor)));
        On<EndTileArray>(d, static (i, x) => i._tiles = null);
    }

    /// <summary>The colour of a cell, which is a colour index or a direct colour.</summary>
    private Rgba CellColor(int cell)
    {
        Rgba color = _state.HasDirectColors
            ? new Rgba((byte)(cell >> 16), (byte)(cell >> 8), (byte)cell)
            : TableColor(cell);
        return Paint.TransparentCell is CgmColor clear && ColorOf(clear) == color ? color.WithAlpha(0) : color;
    }

    private void DrawCells(CellArray x)
    {
        if (x.CellsPerLine < 1 || x.LineCount < 1 || x.Cells.Length < (long)x.CellsPerLine * x.LineCount)
        {
            Skip("cell array without all its cells");
            return;
        }

        ImagePixels cells = TileImages.FromCells(x.Cells, x.CellsPerLine, x.LineCount, CellColor);
        Vec2 p = _map.Point(V(x.FirstCorner));
        Vec2 q = _map.Point(V(x.OppositeCorner));
        Vec2 r = _map.Point(V(x.LineEnd));
        Vec2 along = r - p;
        Vec2 up = r - q;
        Vec2 origin = p - up;
        Place(cells, new Affine2(along.X, along.Y, up.X, up.Y, origin.X, origin.Y));
    }

    private void DrawTile(TileElement tile, Func<PackedTile, ImagePixels?> unpack)
    {
        if (_tiles is not BeginTileArray array)
        {
            Skip("tile outside of an array");
            return;
        }

        int column = _nextTile % Math.Max(1, array.TilesInPathDirection);
        int row = _nextTile / Math.Max(1, array.TilesInPathDirection);
        _nextTile++;
        (int width, int height) = (array.CellsPerTileInPathDirection, array.CellsPerTileInLineDirection);
        var packed = new PackedTile(tile.Compression, tile.Data, width, height) { RowPadding = tile.RowPadding };
        bool fits = packed.Width > 0 && packed.Height > 0 && (long)packed.Width * packed.Height <= MaxCells;
        ImagePixels? cells = fits ? unpack(packed) : null;
        if (cells is null)
        {
            Skip($"tile packed as {tile.Compression}");
            return;
        }

        Place(cells, TileMap(array, column, row));
    }

    private PackedTile Packed(in PackedTile tile, Tile own)
    {
        int metafile = _state.HasDirectColors ? _state.ColorBits : _state.ColorIndexBits;
        return tile with
        {
            Bits = own.CellPrecision > 0 ? own.CellPrecision : metafile,
            Components = _state.HasDirectColors ? 3 : 1,
        };
    }

    /// <summary>The placement of a tile: at its column and row of cells, less those that precede the image.</summary>
    private Affine2 TileMap(BeginTileArray array, int column, int row)
    {
        Vec2 path = Direction(array.CellPathDirection) * array.CellSizeInPathDirection;
        Vec2 line = Direction(array.CellPathDirection + array.LineProgressionDirection) * array.CellSizeInLineDirection;
        double firstCell = ((double)column * array.CellsPerTileInPathDirection) - array.ImageOffsetInPathDirection;
        double firstLine = ((double)row * array.CellsPerTileInLineDirection) - array.ImageOffsetInLineDirection;
        Vec2 start = _map.Point(V(array.Position) + (path * firstCell) + (line * firstLine));
        Vec2 along = _map.Point(path * array.CellsPerTileInPathDirection) - _map.Point(default);
        Vec2 down = _map.Point(line * array.CellsPerTileInLineDirection) - _map.Point(default);
        Vec2 origin = start + down;
        return new Affine2(along.X, along.Y, -down.X, -down.Y, origin.X, origin.Y);
    }

    private static Vec2 Direction(int degrees) => (degrees % 360) switch
    {
        0 => new Vec2(1, 0),
        90 => new Vec2(0, 1),
        180 => new Vec2(-1, 0),
        _ => new Vec2(0, -1),
    };

    private void Place(ImagePixels cells, in Affine2 place)
    {
        EnsureClip();
        var image = new PlacedImage(cells.Width, cells.Height, cells.Pixels, place, 1) { Sharp = true };
        List.Image(image, _layer, BoundsOf(place));
    }

    private static Bounds2 BoundsOf(in Affine2 place)
    {
        Bounds2 box = Bounds2.Empty;
        for (int corner = 0; corner < 4; corner++)
        {
            Vec2 p = place.Point(corner & 1, corner >> 1);
            box.Add(p.X, p.Y);
        }

        return box;
    }
}
