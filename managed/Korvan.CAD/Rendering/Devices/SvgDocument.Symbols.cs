using System;
using System.Collections.Generic;
using Korvan.CAD.DisplayList;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Devices;

/// <content>Symbols: groups that are defined once and used in several places, where that takes less.</content>
internal sealed partial class SvgDocument
{
    /// <summary>About what a coordinate, a use and a definition take in a file, in bytes.</summary>
    private const int CoordinateBytes = 3;
    private const int UseBytes = 75;
    private const int DefinitionBytes = 80;

    /// <summary>Decimals of rotations in degrees: a thousandth of a unit on large pages.</summary>
    private const int AngleDigits = 4;

    /// <summary>From the space of each symbol that is defined to that of the list.</summary>
    private readonly Dictionary<int, Affine2> _toSymbol = [];

    /// <summary>Defines the symbols that are used. Their content is that of one layer, to whose groups the uses belong.
    /// </summary>
    private void WriteSymbols()
    {
        if (!_list.HasSymbols)
        {
            return;
        }

        (DrawingList list, Affine2 map) = (_list, _map);
        _writer.Raw("<defs>\n"u8);
        for (int i = 0; i < list.Definitions.Symbols.Count; i++)
        {
            Symbol symbol = list.Definitions.Symbols[i];
            Bounds2 box = Bounds2.Empty;
            Array.ForEach(symbol.Corners, corner => box.Add(corner.X, corner.Y));
            Affine2 toUse = (map with { X0 = 0, Y0 = 0 }) * new Affine2(1, 0, 0, 1, -box.Center.X, -box.Center.Y);
            if (!IsSmallerAsUses(symbol) || !toUse.TryInvert(out Affine2 toSymbol))
            {
                continue;
            }

            _toSymbol.Add(i, toSymbol);
            (_list, _map, _openLayer) = (list.Definitions, toUse, symbol.Layer);
            _writer.Raw("<g id=\"symbol-"u8);
            WriteWhole(i);
            _writer.Raw("\">\n"u8);
            WriteRuns(_list.ItemsOf(symbol));
            _writer.Raw("</g>\n"u8);
        }

        (_list, _map, _openLayer) = (list, map, -1);
        _writer.Raw("</defs>\n"u8);
    }

    private static bool IsSmallerAsUses(Symbol symbol) => symbol.Layer >= 0
        && (symbol.Uses - 1) * (long)symbol.Weight * CoordinateBytes > DefinitionBytes + ((long)symbol.Uses * UseBytes);

    private int WriteSymbol(in DisplayItem item)
    {
        Placement place = _list.PlacementOf(item);
        if (_toSymbol.TryGetValue(place.Symbol, out Affine2 toSymbol))
        {
            WriteUse(place.Symbol, _map * place.Map * toSymbol);
        }
        else
        {
            (DrawingList list, Affine2 map) = (_list, _map);
            (_list, _map) = (list.Definitions, map * place.Map);
            WriteRuns(_list.ItemsOf(_list.Symbols[place.Symbol]));
            (_list, _map) = (list, map);
        }

        return 1;
    }

    private void WriteUse(int symbol, in Affine2 map)
    {
        _writer.Raw("<use xlink:href=\"#symbol-"u8);
        WriteWhole(symbol);
        _writer.Raw("\" transform=\"translate("u8);
        _writer.Number(map.X0);
        _writer.Raw((byte)' ');
        _writer.Number(map.Y0);
        _writer.Raw((byte)')');
        double angle = Math.Round(Math.Atan2(map.Yx, map.Xx) * 180 / Math.PI, AngleDigits);
        if (angle != 0)
        {
            _writer.Raw("rotate("u8);
            _writer.Exact(angle);
            _writer.Raw((byte)')');
        }

        _writer.Raw("\"/>\n"u8);
    }
}
