using System.Runtime.InteropServices;
using Korvan.CAD.Geometry;

namespace Korvan.CAD.Rendering.Native;

/// <summary>Takes the path of a cairo context over into a buffer of our own.</summary>
internal static unsafe partial class CairoPaths
{
    private const int MoveTo = 0;
    private const int LineTo = 1;
    private const int CurveTo = 2;

    [StructLayout(LayoutKind.Sequential)]
    private struct NativePath
    {
        public int Status;
        public Element* Data;
        public int Count;
    }

    /// <summary>The header of a piece, followed by its points; each fills one element.</summary>
    [StructLayout(LayoutKind.Explicit)]
    private struct Element
    {
        [FieldOffset(0)]
        public int Type;
        [FieldOffset(4)]
        public int Length;
        [FieldOffset(0)]
        public double X;
        [FieldOffset(8)]
        public double Y;
    }

    [LibraryImport(Cairo.Library, EntryPoint = "cairo_copy_path")]
    private static partial nint CopyPath(nint cr);

    [LibraryImport(Cairo.Library, EntryPoint = "cairo_path_destroy")]
    private static partial void PathDestroy(nint path);

    /// <summary>Appends the current path, mapped; the path stays in the context.</summary>
    internal static void Append(nint cr, in Affine2 map, PathBuffer target)
    {
        using var owner = new NativeHandle(CopyPath(cr), &PathDestroy);
        var path = (NativePath*)owner.Pointer;
        Cairo.Check(path->Status, "taking the outlines of a text");
        for (int i = 0; i < path->Count; i += path->Data[i].Length)
        {
            Element* piece = path->Data + i;
            switch (piece->Type)
            {
                case MoveTo:
                    target.MoveTo(map.Point(piece[1].X, piece[1].Y));
                    break;
                case LineTo:
                    target.LineTo(map.Point(piece[1].X, piece[1].Y));
                    break;
                case CurveTo:
                    target.CurveTo(
                        map.Point(piece[1].X, piece[1].Y),
                        map.Point(piece[2].X, piece[2].Y),
                        map.Point(piece[3].X, piece[3].Y));
                    break;
                default:
                    target.Close();
                    break;
            }
        }
    }
}
