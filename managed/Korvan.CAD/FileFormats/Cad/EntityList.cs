using Korvan.CAD.CadExceptions.ImageFormats;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.CadObjects;

namespace Korvan.CAD.FileFormats.Cad;

/// <summary>Entities that belong together. An entity is in one position of one list: its handle names it
/// there.</summary>
/// <param name="name">The property that holds the list.</param>
/// <param name="owner">What the entities belong to.</param>
internal sealed class EntityList<T>(string name, CadEntityBase owner) : CheckedList<T>(name), IEntityList
    where T : CadEntityBase
{
    public CadEntityBase Owner => owner;

    /// <summary>Adds an item at the end, as a load does with many.</summary>
    internal void Append(T item)
    {
        if (item.Home is not null)
        {
            throw Taken(item);
        }

        Items.Add(item);
        Enter(item);
    }

    /// <inheritdoc/>
    protected override void InsertItem(int index, T item)
    {
        if (item?.Home is not null)
        {
            throw Taken(item);
        }

        base.InsertItem(index, item!);
        Enter(item!);
    }

    // Items that are put in order anew stand twice for a moment.
    /// <inheritdoc/>
    protected override void SetItem(int index, T item)
    {
        if (item?.Home is { } home && home != this)
        {
            throw Taken(item);
        }

        T before = this[index];
        base.SetItem(index, item!);
        Enter(item!);
        Leave(before);
    }

    /// <inheritdoc/>
    protected override void RemoveItem(int index)
    {
        T item = this[index];
        base.RemoveItem(index);
        Leave(item);
    }

    /// <inheritdoc/>
    protected override void ClearItems()
    {
        Items.ForEach(Leave);
        base.ClearItems();
    }

    private void Enter(T item)
    {
        item.Home = this;
        item.Places++;
    }

    private static void Leave(T item)
    {
        if (--item.Places == 0)
        {
            item.Home = null;
        }
    }

    private CadException Taken(T item) => item.Home == this
        ? new CadException($"{item} is in this list already; add a clone() of it to have it twice.")
        : new CadException(
            $"{item} belongs to {item.Home!.Owner.DxfName} {item.Home.Owner.Key}, in this or another drawing; take "
                + "it out there first, or add a clone() of it.");
}

/// <summary>Where an entity is.</summary>
internal interface IEntityList
{
    CadEntityBase Owner { get; }
}
