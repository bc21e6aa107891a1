namespace Korvan.CAD;

/// <summary>An object that is looked up by a key.</summary>
public interface IKeyedObject
{
    /// <summary>Gets the key: the name of a table record, or the handle of an entity.</summary>
    string Key { get; }
}
