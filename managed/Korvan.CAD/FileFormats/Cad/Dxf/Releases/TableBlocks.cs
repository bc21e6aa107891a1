using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AcadTable;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Model;
using Korvan.CAD.FileFormats.Cad.Model.Tables;

namespace Korvan.CAD.FileFormats.Cad.Dxf.Releases;

/// <summary>Gives tables that have no block the one of their cells: releases without tables show the block.</summary>
internal static class TableBlocks
{
    internal static void Add(CadDrawing drawing)
    {
        var sources = new TableSources(drawing);
        var names = new FreeBlockNames(drawing, "*T");
        List<CadTableEntity> tables =
            [.. DrawingWalk.Entities(drawing).OfType<CadTableEntity>().Where(table => !HasBlock(drawing, table))];
        foreach (CadTableEntity table in tables)
        {
            if (TableGraphics.Create(table, sources) is not { Count: > 0 } entities)
            {
                continue;
            }

            table.Name = names.Next();
            var block = new CadBlockEntity { Name = table.Name, NameAgain = table.Name, Flags = BlockNames.Anonymous };
            entities.ForEach(block.Entities.Add);
            drawing.BlockEntities.Add(block);
            drawing.BlockRecords.Add(new CadBlockTableObject { Name = block.Name });
        }
    }

    /// <summary>Whether a table has a block.</summary>
    internal static bool HasBlock(CadDrawing drawing, CadTableEntity table) =>
        table.Name.Length > 0 && drawing.BlockEntities.Contains(table.Name);
}
