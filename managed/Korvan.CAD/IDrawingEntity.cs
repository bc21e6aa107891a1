namespace Korvan.CAD;

/// <summary>Something in a drawing, whatever the format.</summary>
public interface IDrawingEntity
{
    /// <summary>Gets what names the entity within its drawing; empty as long as there is nothing.</summary>
    string UniqueId { get; }

    /// <summary>Gets the type as files of the format name it.</summary>
    string TypeNameText { get; }
}
