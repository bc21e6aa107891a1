using System;
using Korvan.CAD.DisplayList;

namespace Korvan.CAD.Rendering.Devices;

/// <summary>Goes through lists in the order of drawing and hands each item to the method for its kind.</summary>
internal abstract class ItemPlayer
{
    /// <summary>Creates a player.</summary>
    /// <param name="list">The list that is drawn first.</param>
    protected ItemPlayer(DrawingList list) => List = list;

    /// <summary>Gets the list that is drawn.</summary>
    protected DrawingList List { get; private set; }

    /// <summary>Draws the items of a list.</summary>
    protected void PlayItems(DrawingList list) => PlayItems(list, list.Items);

    /// <summary>Draws some of the items of a list.</summary>
    protected void PlayItems(DrawingList list, ReadOnlySpan<DisplayItem> items)
    {
        DrawingList outer = List;
        List = list;
        foreach (ref readonly DisplayItem item in items)
        {
            Budget.Check();
            PlayItem(item);
            EndItem();
        }

        List = outer;
    }

    private void PlayItem(in DisplayItem item)
    {
        switch (item.Kind)
        {
            case DisplayKind.Stroke:
                PlayStroke(item);
                break;
            case DisplayKind.Fill:
                PlayFill(item);
                break;
            case DisplayKind.Text:
                PlayText(item);
                break;
            case DisplayKind.Image:
                PlayImage(item);
                break;
            case DisplayKind.Symbol:
                PlaySymbol(item);
                break;
            case DisplayKind.PushClip:
                BeginClip(item);
                break;
            case DisplayKind.PopClip:
                EndClip();
                break;
        }
    }

    protected abstract void PlayStroke(in DisplayItem item);

    protected abstract void PlayFill(in DisplayItem item);

    protected abstract void PlayText(in DisplayItem item);

    protected abstract void PlayImage(in DisplayItem item);

    /// <summary>Draws a placed symbol; devices without symbols get lists without them.</summary>
    protected virtual void PlaySymbol(in DisplayItem item)
    {
    }

    /// <summary>Limits what follows to the inside of the path of an item.</summary>
    protected abstract void BeginClip(in DisplayItem item);

    /// <summary>Ends the limits of the last clip that is open.</summary>
    protected abstract void EndClip();

    /// <summary>Is called after each item.</summary>
    protected virtual void EndItem()
    {
    }
}
