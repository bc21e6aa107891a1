namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>An entity whose graphics are in a block.</summary>
public abstract class CadBlockNameEntity : CadEntityBase
{
    internal CadBlockNameEntity()
    {
    }

    /// <summary>Gets the name of the block with the graphics; empty where there is none yet.</summary>
    public abstract string GraphicsBlockName { get; }
}
