/// A quick share of the whole, such as a quarter.
ChoiceChip {
    implicitWidth: 56
}
