namespace Korvan.CAD;

/// <summary>An entity of a drawing in any format.</summary>
public interface IDrawingEntity
{
    /// <summary>Gets the unique identifier of the entity within its drawing; empty if it has none.</summary>
    string UniqueId { get; }

    /// <summary>Gets the type name as in files of the format.</summary>
    string TypeNameText { get; }
}
