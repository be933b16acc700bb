// The chains of entries that the hash tables keep in their buckets.
#ifndef LUMERIC_CORE_ENTRYCHAIN_H
#define LUMERIC_CORE_ENTRYCHAIN_H

namespace lumeric {

// Deletes every entry of the chain starting at `head` (linked by `next`)
// and leaves `head` null.
template <class Entry>
void deleteChain(Entry*& head) {
  while (head != nullptr) {
    Entry* next = head->next;
    delete head;
    head = next;
  }
}

}  // namespace lumeric

#endif  // LUMERIC_CORE_ENTRYCHAIN_H
