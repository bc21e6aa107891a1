using System.Collections.Generic;
using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.FileFormats.Cad.CadTables;
using Korvan.CAD.FileFormats.Cad.Dxf;
using Korvan.CAD.FileFormats.Cad.Model;

namespace Korvan.CAD.FileFormats.Cad;

/// <summary>The block records of a drawing; releases up to 12 have none.</summary>
public class CadBlockRecordList : NonGenericList
{
    private readonly NamedObjects<CadBlockTableObject> _items;

    internal CadBlockRecordList()
        : this(new NamedObjects<CadBlockTableObject>("block record"))
    {
    }

    private CadBlockRecordList(NamedObjects<CadBlockTableObject> items)
        : base(items)
    {
        _items = items;
    }

    /// <summary>Gets the names, in order.</summary>
    public string[] Names => [.. _items.Items.ConvertAll(static item => item.Key)];

    internal List<CadBlockTableObject> Items => _items.Items;

    /// <summary>Gets a block record by its place, from 0.</summary>
    /// <param name="index">The place.</param>
    public CadBlockTableObject this[int index] => _items.Items[index];

    /// <summary>Gets a block record by its name; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <exception cref="CadException">There is none of this name.</exception>
    public CadBlockTableObject this[string name] => Get(name);

    /// <summary>Gives a block record by its name; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <returns>What has this name. <see cref="Find"/> gives nothing where there is none.</returns>
    /// <exception cref="CadException">There is none of this name.</exception>
    public CadBlockTableObject Get(string name) => Find(name)
        ?? throw new CadException($"The drawing has no block record called '{name}'.");

    /// <summary>Finds a block record; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <returns>What was found, or nothing.</returns>
    public CadBlockTableObject? Find(string name) => _items.Find(name);

    /// <summary>Tells whether there is a block record of a name; upper and lower case are the same.</summary>
    /// <param name="name">The name.</param>
    /// <returns>Whether there is a block record of a name.</returns>
    public bool Contains(string name) => _items.Find(name) is not null;

    /// <summary>Adds a block record.</summary>
    /// <param name="item">What is added.</param>
    public void Add(CadBlockTableObject item) => _items.Add(item);

    /// <summary>Removes a block record.</summary>
    /// <param name="item">What is removed.</param>
    /// <returns>Whether it was there.</returns>
    public bool Remove(CadBlockTableObject item) => _items.Remove(item);

    /// <summary>Gives all, in order.</summary>
    /// <returns>All, in order.</returns>
    public List<CadBlockTableObject>.Enumerator GetEnumerator() => _items.Items.GetEnumerator();
}
