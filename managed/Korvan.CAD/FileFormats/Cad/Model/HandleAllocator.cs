using System;
using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>Gives handles to objects that have none, from $HANDSEED on.</summary>
internal static class HandleAllocator
{
    internal static void Assign(CadDrawing drawing, bool required)
    {
        HashSet<ulong> used = [];
        ulong next = 1;
        foreach (CadBaseObject item in DrawingWalk.All(drawing))
        {
            next = Math.Max(next, item.Handle + 1);

            // An object that took the handle of another gets one of its own.
            if (item.Handle != 0 && !used.Add(item.Handle))
            {
                item.Handle = 0;
            }
        }

        // Old drawings may do without handles; then new objects have none either.
        if (!required && used.Count == 0)
        {
            return;
        }

        if (HandleText.TryParse(drawing.Header.HandSeed, out ulong seed))
        {
            next = Math.Max(next, seed);
        }

        foreach (CadBaseObject item in DrawingWalk.All(drawing))
        {
            if (item.Handle == 0 && (required || IsWritten(drawing, item)))
            {
                item.Handle = next++;
            }
        }

        drawing.Header.HandSeed = HandleText.Format(next);
    }

    // Old files need not have the blocks of model and paper space.
    private static bool IsWritten(CadDrawing drawing, CadBaseObject item)
    {
        bool isModel = item == drawing.ModelSpace || item == drawing.ModelSpace.End;
        bool isPaper = item == drawing.PaperSpace || item == drawing.PaperSpace.End;
        return item is CadEntityBase
            && !(isModel && !drawing.ModelSpaceInFile) && !(isPaper && !drawing.PaperSpaceInFile);
    }
}
