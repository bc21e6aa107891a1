using System;
using System.Collections.Generic;
using System.Linq;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.Blocks;
using Korvan.CAD.FileFormats.Cad.CadObjects.Dictionary;
using Korvan.CAD.FileFormats.Cad.CadTables;

namespace Korvan.CAD.FileFormats.Cad.Model;

/// <summary>Relates references to the dynamic blocks they show. A reference to a state names an anonymous block with
/// the entities of that state; extended data of its record, and an object of the reference, state the dynamic block.
/// </summary>
internal sealed class DynamicBlocks(CadDrawing drawing)
{
    private const string BlockTag = "AcDbBlockRepBTag";
    private const string GraphEntry = "ACAD_ENHANCEDBLOCK";
    private const string RepresentationEntry = "AcDbBlockRepresentation";
    private const int HandleCode = 1005;

    private readonly ExtensionDictionaries _owned = new(drawing);

    /// <summary>Returns the dynamic block that a reference shows in one of its states; null for other
    /// references.</summary>
    internal CadBlockEntity? BlockOf(CadInsertObject reference) =>
        RecordOf(reference) is { } record && GraphOf(record) is not null
            ? drawing.BlockEntities.Find(record.Name) : null;

    /// <summary>Returns the name of the visibility state that a reference shows; empty where its block has no
    /// states.</summary>
    internal string StateOf(CadInsertObject reference)
    {
        CadBlockVisibilityParameter? parameter = RecordOf(reference) is { } record
            ? GraphOf(record)?.GetObjectHandles().Select(_owned.Find)
                .OfType<CadBlockVisibilityParameter>().FirstOrDefault()
            : null;
        if (parameter is null)
        {
            return "";
        }

        string[] names = parameter.GetStateNames();
        return StoredState(reference, parameter, names) ?? ShownState(reference, parameter, names) ?? "";
    }

    private CadBlockTableObject? RecordOf(CadInsertObject reference)
    {
        CadBlockTableObject? own = drawing.BlockRecords.Find(reference.Name);
        string? tagged = own?.XdataOrNull?.Find(BlockTag)?.Data.Find(static tag => tag.Attribute == HandleCode)?.Value;
        CadAcDbBlockRepresentationData? data = tagged is null
            ? Dictionary(Dictionary(reference), RepresentationEntry)?.Names
                .Select(name => Entry(Dictionary(Dictionary(reference), RepresentationEntry), name))
                .OfType<CadAcDbBlockRepresentationData>().FirstOrDefault()
            : null;
        string? handle = tagged ?? data?.BlockHandle;
        return handle is not null && HandleText.TryParse(handle, out ulong number)
            ? drawing.BlockRecords.Items.Find(record => record.Handle == number) : own;
    }

    private CadAcadEvaluationGraph? GraphOf(CadBlockTableObject record) =>
        Entry(Dictionary(record), GraphEntry) as CadAcadEvaluationGraph;

    // The saved values of a reference are records by the indices of nodes; that of the visibility has the state's name.
    private string? StoredState(CadInsertObject reference, CadBlockVisibilityParameter parameter, string[] names)
    {
        CadDictionaryBase? values = Dictionary(
            Dictionary(Dictionary(Dictionary(reference), RepresentationEntry), "AppDataCache"),
            "ACAD_ENHANCEDBLOCKDATA");
        string node = parameter.NodeId.ToString(System.Globalization.CultureInfo.InvariantCulture);
        return (Entry(values, node) as CadXRecord)?.Data.Select(static tag => tag.Value)
            .FirstOrDefault(value => names.Contains(value, StringComparer.Ordinal));
    }

    // A reference to the dynamic block itself shows the state whose entities are visible in it.
    private string? ShownState(CadInsertObject reference, CadBlockVisibilityParameter parameter, string[] names)
    {
        HashSet<string> governed = new(parameter.EntityHandles, StringComparer.OrdinalIgnoreCase);
        string[] visible =
        [
            .. (drawing.BlockEntities.Find(reference.Name)?.Entities ?? [])
                .Where(entity => entity.Visible == 0 && governed.Contains(entity.ObjectHandle))
                .Select(static entity => entity.ObjectHandle),
        ];
        return visible.Length == 0 ? null : names.FirstOrDefault(name =>
            new HashSet<string>(parameter.GetVisibleEntities(name), StringComparer.OrdinalIgnoreCase)
                .SetEquals(visible));
    }

    private CadDictionaryBase? Dictionary(CadBaseObject? owner) => _owned.Of(owner);

    private CadDictionaryBase? Dictionary(CadDictionaryBase? dictionary, string name) =>
        Entry(dictionary, name) as CadDictionaryBase;

    private CadObjectBase? Entry(CadDictionaryBase? dictionary, string name) => _owned.Entry(dictionary, name);
}
