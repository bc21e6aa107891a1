using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.FileFormats.Cad.CadObjects.AttEntities;
using Korvan.CAD.FileFormats.Cad.CadObjects.Polylines;
using Korvan.CAD.FileFormats.Cad.CadObjects.Vertices;
using Korvan.CAD.FileFormats.Cad.CadTables;

namespace Korvan.CAD.FileFormats.Cad.Dwg.Early;

/// <summary>Puts entities where they belong: into polylines, insertions, blocks and spaces.</summary>
/// <param name="drawing">The drawing.</param>
internal sealed class EarlyCollector(CadDrawing drawing)
{
    private CadPolylineBase? _polyline;
    private CadInsertObject? _insert;
    private CadBlockEntity? _block;
    private CadBlockEntity? _outerBlock;
    private bool _isRepeating;
    private int _repeats;

    /// <summary>Gets whether the block that was begun has ended.</summary>
    internal bool IsBlockDone { get; private set; }

    /// <summary>Begins the entities of a block.</summary>
    internal void Begin(CadBlockEntity block)
    {
        EndSequence();
        _block = block;
        IsBlockDone = false;
    }

    /// <summary>Ends whatever is open.</summary>
    internal void End()
    {
        EndSequence();
        _block = null;
        IsBlockDone = true;
    }

    /// <summary>Creates the vertex of the open polyline.</summary>
    /// <param name="flags">The flags of the vertex.</param>
    internal CadVertexBase? CreateVertex(int flags) => _polyline?.CreateVertex(flags);

    /// <summary>Adds an entity.</summary>
    /// <param name="entity">The entity.</param>
    /// <param name="isFollowed">Whether its parts follow.</param>
    internal void Add(CadEntityBase entity, bool isFollowed)
    {
        switch (entity)
        {
            case CadVertexBase vertex when _polyline is not null:
                _polyline.Vertices.Add(vertex);
                break;
            case CadAttrib attribute when _insert is not null:
                _insert.Attributes.Add(attribute);
                break;
            case CadSeqend end:
                EndSequence(end);
                break;
            case CadBlockEntity block:
                AddBlock(block);
                break;
            case CadEndBlock end:
                EndBlock(end);
                break;
            case CadVertexBase or CadAttrib:
                break;
            default:
                AddTo(entity, isFollowed);
                break;
        }
    }

    /// <summary>Begins entities that are repeated in rows and columns.</summary>
    internal void BeginRepeat()
    {
        if (_isRepeating)
        {
            return;
        }

        EndSequence();
        string name = $"*U{++_repeats}";
        CadBlockEntity block = new() { Name = name, NameAgain = name, Flags = 1 };
        drawing.BlockRecords.Add(new CadBlockTableObject { Name = name });
        drawing.BlockEntities.Add(block);
        (_outerBlock, _block, _isRepeating) = (_block, block, true);
    }

    /// <summary>Ends entities that are repeated.</summary>
    /// <param name="grid">Gets the block of these entities.</param>
    internal void EndRepeat(CadInsertObject grid)
    {
        if (_isRepeating && _block is { } repeated)
        {
            (_block, _outerBlock, _isRepeating) = (_outerBlock, null, false);
            grid.Name = repeated.Name;
            AddTo(grid, false);
        }
    }

    private void AddTo(CadEntityBase entity, bool isFollowed)
    {
        EndSequence();
        _polyline = entity as CadPolylineBase;
        _insert = isFollowed ? entity as CadInsertObject : null;
        CadBlockEntity target = _block
            ?? (entity.SpaceMode == CadEntitySpaceMode.PaperSpace ? drawing.PaperSpace : drawing.ModelSpace);
        target.Entities.Add(entity);
    }

    private void EndSequence(CadSeqend? end = null)
    {
        if (end is not null && _polyline is not null)
        {
            _polyline.Seqend = end;
        }
        else if (end is not null && _insert is not null)
        {
            _insert.Seqend = end;
        }

        _polyline = null;
        _insert = null;
    }

    // The first release has blocks among other entities.
    private void AddBlock(CadBlockEntity block)
    {
        block.NameAgain = block.Name;
        drawing.BlockRecords.Add(new CadBlockTableObject { Name = block.Name });
        drawing.BlockEntities.Add(block);
        Begin(block);
    }

    private void EndBlock(CadEndBlock end)
    {
        if (_block is not null)
        {
            _block.End = end;
        }

        End();
    }
}
