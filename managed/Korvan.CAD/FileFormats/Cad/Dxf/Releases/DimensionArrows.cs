using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad.Dxf.Releases;

/// <summary>The arrow blocks of dimension styles: names up to release 14, handles of block records from 2000
/// on.</summary>
internal static class DimensionArrows
{
    internal static void ToHandles(CadDrawing drawing, CadDimensionStyleTable style)
    {
        style.Dimblk = HandleOf(drawing, style.DimblkName, style.Dimblk);
        style.Dimblk1 = HandleOf(drawing, style.Dimblk1Name, style.Dimblk1);
        style.Dimblk2 = HandleOf(drawing, style.Dimblk2Name, style.Dimblk2);
        style.DimblkName = style.Dimblk1Name = style.Dimblk2Name = "";
    }

    internal static void ToNames(CadDrawing drawing, CadDimensionStyleTable style)
    {
        style.DimblkName = NameOf(drawing, style.Dimblk) ?? style.DimblkName;
        style.Dimblk1Name = NameOf(drawing, style.Dimblk1) ?? style.Dimblk1Name;
        style.Dimblk2Name = NameOf(drawing, style.Dimblk2) ?? style.Dimblk2Name;
    }

    private static string HandleOf(CadDrawing drawing, string name, string known) =>
        name.Trim() is { Length: > 0 } block && drawing.BlockRecords.Find(block) is { } record
            ? record.ObjectHandle
            : known;

    private static string? NameOf(CadDrawing drawing, string handle) =>
        HandleText.TryParse(handle, out ulong number) && number != 0
            ? drawing.BlockRecords.Items.Find(record => record.Handle == number)?.Name
            : null;
}
