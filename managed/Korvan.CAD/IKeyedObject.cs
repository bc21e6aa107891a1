namespace Korvan.CAD;

/// <summary>Something that is found by a key among its like.</summary>
public interface IKeyedObject
{
    /// <summary>Gets the key: the name of a record of a table, the handle of an entity.</summary>
    string Key { get; }
}
